// A page of pictures: one gray picture through the display tables, thresholded, as a mask and as 16-bit samples, and a
// colour picture thresholded by hue.
//
//   PicturePage GRAY.bmp COLOUR.bmp FOLDER      ("" for a picture that the program makes itself)
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "Example.h"

namespace {

constexpr int cellWidth = 250, cellHeight = 200, captionHeight = 22, columns = 4, rows = 3;

struct Cell {
    std::string caption;
    std::unique_ptr<CcImage> image;
    unsigned short lut = 101;
};

std::unique_ptr<CcGrayImage256> OpenGray(const std::string& path) {
    auto image = std::make_unique<CcGrayImage256>();
    if (path.empty() || image->OpenBMPFile(path.c_str()) < 0) example::MakeSamplePicture(*image);
    return image;
}

/// Rows of all hues, pale at the left.
void MakeColourPicture(Cc24BitHSLImage& image) {
    constexpr int size = 240;
    image.MakeBlankBMP(size, size, 0, "hues");
    auto* plane = static_cast<unsigned char*>(image.GetBitMapImageDataHSL());
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x, plane += 3) {
            plane[0] = 120;
            plane[1] = static_cast<unsigned char>(x);
            plane[2] = static_cast<unsigned char>(y);
        }
    image.UpdateRGB();
}

std::unique_ptr<Cc24BitHSLImage> OpenColour(const std::string& path) {
    auto image = std::make_unique<Cc24BitHSLImage>();
    if (path.empty() || image->OpenBMPFile(path.c_str()) < 0) MakeColourPicture(*image);
    return image;
}

/// Sets a curve of a display table: level(x) for the inputs of its points.
template <class Level>
void SetCurve(CcImage& image, int lut, int channel, int points, Level level) {
    std::vector<tagPoints> curve(points);
    for (int k = 0; k < points; ++k) {
        const float x = static_cast<float>(k * (256 / points));
        curve[k] = {x, static_cast<float>(level(x))};
    }
    image.SetDisplayLUT(lut, channel, curve.data());
}

const unsigned char* BytesOf(CcImage& image) { return static_cast<unsigned char*>(image.GetBitMapImageData()); }

std::unique_ptr<CcBinaryImage> MakeMask(CcImage& gray, int threshold) {
    int height, width;
    gray.GetHeightWidth(&height, &width);
    auto mask = std::make_unique<CcBinaryImage>();
    mask->MakeBlankBMP(height, width, 0, "mask");
    auto* target = static_cast<unsigned char*>(mask->GetBitMapImageData());
    for (int i = 0; i < height * width; ++i) target[i] = BytesOf(gray)[i] >= threshold;
    return mask;
}

/// The picture as 12-bit samples between 1000 and 3000: too dark for a fixed range, right once it is normalised.
std::unique_ptr<CcGrayImageInt16> MakeWide(CcImage& gray) {
    int height, width;
    gray.GetHeightWidth(&height, &width);
    auto wide = std::make_unique<CcGrayImageInt16>();
    wide->MakeBlankBMP(height, width, 0, "wide");
    auto* samples = static_cast<unsigned short*>(wide->GetBitMapImageData());
    for (int i = 0; i < height * width; ++i)
        samples[i] = static_cast<unsigned short>(1000 + 2000 * BytesOf(gray)[i] / 255);
    wide->SetAutoUpdateDisplay(1);
    wide->ReScaleImageOnShow();
    return wide;
}

std::vector<Cell> MakeCells(const std::string& grayPath, const std::string& colourPath) {
    std::vector<Cell> cells;
    cells.push_back({"LUT 102, 256 grays", OpenGray(grayPath), 102});
    cells.push_back({"LUT 103, 128 grays: a negative", OpenGray(grayPath), 103});
    SetCurve(*cells.back().image, 103, 0, 128, [](float x) { return 255 - x; });
    cells.push_back({"LUT 104, 64 grays: brighter", OpenGray(grayPath), 104});
    SetCurve(*cells.back().image, 104, 0, 64, [](float x) { return 255 * std::sqrt(x / 255); });
    cells.push_back({"LUT 101, false colours", OpenGray(grayPath), 101});
    for (int channel = 1; channel <= 3; ++channel)
        SetCurve(*cells.back().image, 101, channel, 256, [peak = 4.0F - static_cast<float>(channel)](float x) {
            return 255 * std::fmax(0.0F, 1 - std::fabs(x / 64 - peak));
        });

    cells.push_back({"one band", OpenGray(grayPath)});
    cells.back().image->BeginThresholding(nullptr, 101);
    cells.back().image->ThresholdImage(nullptr, 110, 255, 255, 0, 0);
    cells.push_back({"three bands", OpenGray(grayPath)});
    ThresholdTag bands[] = {{0, 60, 0, 90, 200}, {110, 160, 255, 160, 0}, {160, 255, 255, 0, 0}};
    cells.back().image->ThresholdImageMulti(nullptr, bands, 3);
    cells.push_back({"binary mask", MakeMask(*cells[0].image, 110)});
    cells.push_back({"mask with its ones in colour", MakeMask(*cells[0].image, 110)});
    cells.back().image->ThresholdImage(GetDesktopWindow(), 1, 1, 0, 130, 60);

    cells.push_back({"16-bit samples, normalised", MakeWide(*cells[0].image)});
    cells.push_back({"colour", OpenColour(colourPath)});
    auto hues = OpenColour(colourPath);
    hues->SetAccess(KEST_CHANNEL_HUE);
    hues->BeginThresholding(nullptr, 0);
    hues->ThresholdImage(nullptr, 0, 40, 0, 200, 0);
    cells.push_back({"hues 0 to 40 in green", std::move(hues)});
    auto saturated = OpenColour(colourPath);
    saturated->SetAccess(KEST_CHANNEL_SATURATION);
    saturated->BeginThresholding(nullptr, 0);
    saturated->ThresholdImage(nullptr, 90, 240, 255, 0, 255);
    cells.push_back({"saturations from 90 in magenta", std::move(saturated)});
    return cells;
}

void DrawCell(HDC dc, const Cell& cell, int index) {
    const int left = index % columns * (cellWidth + 8) + 8,
              top = index / columns * (cellHeight + captionHeight + 8) + 4;
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(30, 30, 30));
    TextOutA(dc, left, top + 2, cell.caption.c_str(), static_cast<int>(cell.caption.size()));
    int height = 1, width = 1;
    cell.image->GetHeightWidth(&height, &width);
    const double scale = std::fmin(static_cast<double>(cellWidth) / width, static_cast<double>(cellHeight) / height);
    RECT place = {left, top + captionHeight, left + static_cast<int>(width * scale),
                  top + captionHeight + static_cast<int>(height * scale)};
    cell.image->Show(dc, &place, cell.lut, 2, 0, 0, 1);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::printf("PicturePage GRAY.bmp COLOUR.bmp FOLDER\n");
        return 2;
    }
    const std::vector<Cell> cells = MakeCells(argv[1], argv[2]);
    const HWND window =
        example::OpenWindow("Pictures", columns * (cellWidth + 8) + 8, rows * (cellHeight + captionHeight + 8) + 8,
                            [&](HWND shown, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
                                if (message != WM_PAINT) return DefWindowProcA(shown, message, wParam, lParam);
                                PAINTSTRUCT paint;
                                const HDC dc = BeginPaint(shown, &paint);
                                FillRect(dc, &paint.rcPaint, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
                                for (std::size_t i = 0; i < cells.size(); ++i)
                                    DrawCell(dc, cells[i], static_cast<int>(i));
                                EndPaint(shown, &paint);
                                return 0;
                            });
    example::PumpMessages(300);
    const std::string path = std::string(argv[3]) + "/5-pictures.bmp";
    if (!example::SavePicture(window, path)) return 1;
    std::printf("pictures %s\n", path.c_str());
    return 0;
}
