// How the 8-bit grayscale image is shown: its five display tables, their point lists, and drawing through one of them.
#include <algorithm>

#include "CcGrayImage256.h"
#include "image/DibFiles.h"
#include "image/DisplayTables.h"
#include "image/ImageClipboard.h"
#include "image/PrintImage.h"
#include "image/ShowImage.h"
#include "image/kernel/DisplayLut.h"

void CcGrayImage256::ReleaseTables() {
    for (KestDisplayTable* table : {&stTable100, &stTable101, &stTable102, &stTable103, &stTable104})
        kest::ReleaseTable(*table);
}

bool CcGrayImage256::MakeTables() {
    kest::DibLayout layout;
    if (!lpBits || !kest::ReadDibLayout(kest::BytesOf(hDib), layout)) return true;
    CountDibColors(&iNumColors, &iColorTableBytes);
    return kest::MakeFileColourTable(stTable100, kest::BytesOf(hDib), layout) && kest::MakeColourTable(stTable101) &&
           kest::MakeIndexTable(stTable102, 256) && kest::MakeIndexTable(stTable103, 128) &&
           kest::MakeIndexTable(stTable104, 64);
}

tagPoints* CcGrayImage256::PointsOf(int iLUT, int iChannel, int* piCount) {
    struct Row {
        int lut, channel;
        tagPoints* points;
        int count;
    };
    const Row rows[] = {{101, 1, stLUTRed, 256}, {101, 2, stLUTGreen, 256}, {101, 3, stLUTBlue, 256},
                        {102, 0, stLUT256, 256}, {103, 0, stLUT128, 128},   {104, 0, stLUT64, 64}};
    for (const Row& row : rows) {
        if (row.lut != iLUT || row.channel != iChannel) continue;
        *piCount = row.count;
        return row.points;
    }
    return nullptr;
}

int CcGrayImage256::GetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    int count = 0;
    const tagPoints* points = PointsOf(iLUT, iChannel, &count);
    if (!pPoints || !points) return KEST_FAILED;
    std::copy_n(points, count, pPoints);
    return KEST_OK;
}

int CcGrayImage256::SetDisplayLUT(int iLUT, int iChannel, tagPoints* pPoints) {
    if (!pPoints) return KEST_FAILED;
    int count = 0;
    tagPoints* own = PointsOf(iLUT, iChannel, &count);
    if (!own) {
        // A colour list for a channel that does not exist is checked like the others, and then changes nothing.
        const bool isColourList = iLUT == 101 && kest::HasLevelSteps({pPoints, 256});
        return isColourList ? KEST_OK : KEST_FAILED;
    }
    if (!kest::HasLevelSteps({pPoints, static_cast<std::size_t>(count)}) || !MakeTables()) return KEST_FAILED;
    std::copy_n(pPoints, count, own);
    FillTable(iLUT, iChannel, own);
    return KEST_OK;
}

void CcGrayImage256::FillTable(int iLUT, int iChannel, const tagPoints* pPoints) {
    switch (iLUT) {
        case 101:
            kest::FillColourChannel({pPoints, 256}, kest::ColoursOf(stTable101), 3 - iChannel);
            break;
        case 102:
            kest::FillGrayIndices({pPoints, 256}, kest::IndicesOf(stTable102));
            break;
        case 103:
            kest::FillGrayIndices({pPoints, 128}, kest::IndicesOf(stTable103));
            break;
        case 104:
            kest::FillGrayIndices({pPoints, 64}, kest::IndicesOf(stTable104));
            break;
    }
}

kest::ImageLook CcGrayImage256::Look(unsigned short usLUT) {
    kest::ImageLook look;
    look.bits = lpBits;
    look.width = iWidth;
    look.height = iHeight;
    look.dibColours = lpColors;
    look.dibColourBytes = iColorTableBytes;
    look.usesPalette = true;
    const KestDisplayTable* tables[] = {&stTable100, &stTable101, &stTable102, &stTable103, &stTable104};
    if (usLUT >= 100 && usLUT <= 104) {
        const KestDisplayTable& table = *tables[usLUT - 100];
        look.palette = table.hPalette;
        look.displayTable = table.pTable;
        look.colourUse = usLUT >= 102 ? DIB_PAL_COLORS : DIB_RGB_COLORS;
    }
    return look;
}

int CcGrayImage256::CopyToClipboard(HWND hWnd, unsigned short usLUT, RECT* pRect) {
    if (!lpBits || !MakeTables()) return KEST_FAILED;
    GetOverlay();
    const bool isKnown = usLUT >= 100 && usLUT <= 104;
    return kest::CopyToClipboard(
        hWnd, [&] { return Look(isKnown ? usLUT : 101); }, [&] { return OverlayPicture(); }, pRect);
}

int CcGrayImage256::Print(HWND hWnd, unsigned short usLUT, unsigned short usMode, int iXOffset, int iYOffset,
                          int iZoom) {
    if (!lpBits || !MakeTables()) return KEST_FAILED;
    const kest::PrinterDc printer(stPrintSetup);
    if (!printer || usLUT < 100 || usLUT > 104) return KEST_FAILED;
    // Everything is printed in the colours of table 101's palette; the table itself is left as it is.
    std::uint8_t grays[kest::ColourTableBytes];
    const auto takeLook = [&] {
        kest::ImageLook look = Look(usLUT);
        if (look.colourUse == DIB_PAL_COLORS && look.displayTable) {
            kest::SpreadIndices(static_cast<const std::uint16_t*>(look.displayTable), grays);
            look.displayTable = grays;
        }
        look.colourUse = DIB_RGB_COLORS;
        look.palette = stTable101.hPalette;
        return look;
    };
    GetOverlay();
    return kest::PrintImage(
        printer, stDocInfo, szObjectName, takeLook, [&] { return OverlayPicture(); }, hWnd,
        {usMode, iXOffset, iYOffset, iZoom});
}
