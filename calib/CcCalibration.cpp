// CcCalibration: from image pixels to world units and back.
#include "CcCalibration.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "KestWholeFile.h"
#include "calib/kernel/CalibrationFile.h"
#include "core/FileDialogs.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "core/kernel/NameCounter.h"
#include "core/kernel/TextField.h"

int CcCalibration::iCalibrationCount = 0;

namespace {

constexpr char fileFilter[] = "Calibration Files(*.CAL)\0*.cal\0All Files (*.*)\0*.*\0";
constexpr char anyFile[] = "*.cal";
constexpr char startDirectory[] = "C:\\";
constexpr char defaultExtension[] = "cal";

static_assert(KEST_UNITS_SIZE == kest::unitsFieldBytes);

using Transform = float[3][3];

kest::Perspective MappingOf(const Transform& transform) {
    kest::Perspective mapping;
    std::memcpy(mapping.h, transform, sizeof mapping.h);
    return mapping;
}

void TakeMapping(Transform& transform, const kest::Perspective& mapping) {
    std::memcpy(transform, mapping.h, sizeof mapping.h);
}

}  // namespace

CcCalibration::CcCalibration()
    : iLatestVersionNumber(kest::calibrationVersion2),
      iLoadedVersionNumber(kest::calibrationVersion2),
      szUnitsOfMeasure("Inches"),
      iAreaMapWidth(-1),
      iAreaMapHeight(-1),
      pAreaMap(nullptr),
      stImagePoints{},
      stWorldPoints{} {
    SetType(KEST_TYPE_CALIBRATION);
    TakeMapping(fTransform, {});
    std::snprintf(szObjectName, sizeof szObjectName, "Calibration%d", kest::NextNumber(iCalibrationCount));
}

CcCalibration::~CcCalibration() = default;

int CcCalibration::DoCalibration(tagPoints* pImagePoints, tagPoints* pWorldPoints, int iCount, int iWidth,
                                 int iHeight) {
    if (!pImagePoints || !pWorldPoints || iCount != 4) return KEST_FAILED;
    // The points may be the calibration's own, in either role.
    tagPoints world[4];
    std::copy_n(pWorldPoints, 4, world);
    std::memmove(stImagePoints, pImagePoints, sizeof stImagePoints);
    std::copy_n(world, 4, stWorldPoints);
    kest::Perspective mapping;
    if (!kest::FitPerspective(stImagePoints, stWorldPoints, mapping)) return KEST_FAILED;
    TakeMapping(fTransform, mapping);
    if (!MakeAreaMap(iWidth, iHeight)) return KEST_FAILED;
    kest::FillAreaMap(mapping, iWidth, iHeight, {pAreaMap, static_cast<std::size_t>(kest::Product(iWidth, iHeight))});
    return KEST_OK;
}

int CcCalibration::ConvertPoint(float fX, float fY, float* pfWorldX, float* pfWorldY) {
    if (!pfWorldX || !pfWorldY) return KEST_FAILED;
    const tagPoints world = kest::ImageToWorld(MappingOf(fTransform), {fX, fY});
    *pfWorldX = world.x;
    *pfWorldY = world.y;
    return KEST_OK;
}

int CcCalibration::ConvertPoint(tagPoints* pImage, tagPoints* pWorld) {
    return pImage && pWorld ? ConvertPoint(pImage->x, pImage->y, &pWorld->x, &pWorld->y) : KEST_FAILED;
}

int CcCalibration::ConvertPoints(const tagPoints* pImage, tagPoints* pWorld, int iCount) {
    if (!pImage || !pWorld || iCount < 0) return KEST_FAILED;
    const auto count = static_cast<std::size_t>(iCount);
    kest::ImageToWorld(MappingOf(fTransform), {pImage, count}, {pWorld, count});
    return KEST_OK;
}

int CcCalibration::ConvertPointExactly(double dX, double dY, double* pdWorldX, double* pdWorldY) const {
    if (!pdWorldX || !pdWorldY) return KEST_FAILED;
    const kest::RealPoint world = kest::ImageToWorldExact(MappingOf(fTransform), {dX, dY});
    *pdWorldX = world.x;
    *pdWorldY = world.y;
    return KEST_OK;
}

int CcCalibration::ReverseConvertPoint(float fWorldX, float fWorldY, float* pfX, float* pfY) {
    if (!pfX || !pfY) return KEST_FAILED;
    const tagPoints image = kest::WorldToImage(MappingOf(fTransform), {fWorldX, fWorldY});
    *pfX = image.x;
    *pfY = image.y;
    return KEST_OK;
}

float CcCalibration::GetAreaOfPixel(int iX, int iY) {
    if (!pAreaMap) return 1.0F;
    if (iX < 0 || iX >= iAreaMapWidth || iY < 0 || iY >= iAreaMapHeight) return -1.0F;
    return pAreaMap[kest::Product(iAreaMapWidth, iY) + iX];
}

float CcCalibration::ComputeAreaOfPixel(int iX, int iY) const { return kest::PixelArea(MappingOf(fTransform), iX, iY); }

int CcCalibration::GetSizeOfImage(int* piWidth, int* piHeight) {
    if (piWidth) *piWidth = iAreaMapWidth;
    if (piHeight) *piHeight = iAreaMapHeight;
    return KEST_OK;
}

tagPoints* CcCalibration::GetImagePoints() { return stImagePoints; }

tagPoints* CcCalibration::GetWorldPoints() { return stWorldPoints; }

char* CcCalibration::GetUnitsOfMeasure() { return szUnitsOfMeasure; }

int CcCalibration::SetUnitsOfMeasure(const char* pszUnits) {
    return pszUnits && kest::CopyIfFits(szUnitsOfMeasure, pszUnits) ? KEST_OK : KEST_FAILED;
}

int CcCalibration::GetLatestVersionNumber() { return iLatestVersionNumber; }

int CcCalibration::GetLoadedVersionNumber() { return iLoadedVersionNumber; }

int CcCalibration::Save(const char* pszFileName) {
    char path[KEST_NAME_SIZE];
    if (!pszFileName) {
        char proposal[KEST_NAME_SIZE];
        if (szObjectName[0] == 0)
            kest::CopyCut(proposal, anyFile);
        else
            std::snprintf(proposal, sizeof proposal, "%.*s.cal", KEST_NAME_SIZE, szObjectName);
        if (!kest::AskPathToSave({fileFilter, proposal, startDirectory, defaultExtension, false}, path))
            return KEST_FAILED;
        pszFileName = path;
    }
    kest::CalibrationHeader header;
    header.type = GetType();
    header.version = kest::calibrationVersion2;
    kest::CopyField(header.name, szObjectName, sizeof szObjectName);
    kest::CopyField(header.units, szUnitsOfMeasure, sizeof szUnitsOfMeasure);
    header.mapping = MappingOf(fTransform);
    header.mapWidth = iAreaMapWidth;
    header.mapHeight = iAreaMapHeight;
    std::copy_n(stImagePoints, 4, header.imagePoints);
    std::copy_n(stWorldPoints, 4, header.worldPoints);
    std::uint8_t bytes[kest::headerBytesVersion2];
    kest::WriteVersion2(header, bytes);
    KestWholeFile file(pszFileName);
    file.Write(bytes, sizeof bytes);
    if (header.HasMap() && pAreaMap) file.Write(pAreaMap, kest::AreaMapBytes(iAreaMapWidth, iAreaMapHeight));
    file.Replace();
    if (file.GetResult() == KestWholeFile::NotWritten)
        kest::ShowMessage("Problem writing calibration to file", "File I/O Error");
    return file.GetResult() == KestWholeFile::NotCreated ? KEST_FAILED : KEST_OK;
}

int CcCalibration::Open(const char* pszFileName) {
    char path[KEST_NAME_SIZE];
    if (!pszFileName) {
        if (!kest::AskPathToOpen({fileFilter, anyFile, startDirectory, defaultExtension, false}, path))
            return KEST_FAILED;
        pszFileName = path;
    }
    const kest::FileHandle file(kest::OpenForReading(pszFileName));
    if (!file.IsOpen()) return KEST_FAILED;

    std::uint8_t common[kest::headerBytesVersion1];
    std::uint8_t points[kest::headerBytesVersion2 - kest::headerBytesVersion1];
    kest::CalibrationHeader header;
    if (!kest::ReadExactly(file, common, sizeof common)) return KEST_FAILED;
    kest::ReadVersion1(common, header);
    if (header.type != GetType()) return KEST_FAILED;
    if (header.version != kest::calibrationVersion1) {
        if (!kest::ReadExactly(file, points, sizeof points) || header.version != kest::calibrationVersion2)
            return KEST_FAILED;
        kest::ReadPoints(points, header);
    }
    // The bytes that exist are counted first, so that no file makes a block larger than itself. An old map stays until
    // the new one is whole.
    KestGlobalBlock newMap;
    if (header.HasMap()) {
        const kest::Size64 mapBytes = kest::AreaMapBytes(header.mapWidth, header.mapHeight);
        if (mapBytes == 0 || mapBytes > kest::BytesLeft(file) || !newMap.Allocate(mapBytes) ||
            !kest::ReadExactly(file, newMap.Get(), mapBytes))
            return KEST_FAILED;
    }
    TakeAreaMap(newMap, header.mapWidth, header.mapHeight);
    SetName(header.name);
    TakeMapping(fTransform, header.mapping);
    kest::CopyField(szUnitsOfMeasure, header.units, sizeof header.units);
    if (header.version == kest::calibrationVersion2) {
        std::copy_n(header.imagePoints, 4, stImagePoints);
        std::copy_n(header.worldPoints, 4, stWorldPoints);
    }
    iLoadedVersionNumber = header.version;
    return KEST_OK;
}

void CcCalibration::DropAreaMap() {
    hAreaMap.Release();
    pAreaMap = nullptr;
    iAreaMapWidth = iAreaMapHeight = -1;
}

// The map of a file; a block of none, for none. One of the same size is filled anew and stays where it is.
void CcCalibration::TakeAreaMap(KestGlobalBlock& newMap, int iWidth, int iHeight) {
    const bool isSameSize = pAreaMap && newMap.Get() && iAreaMapWidth == iWidth && iAreaMapHeight == iHeight;
    if (isSameSize) {
        std::memcpy(pAreaMap, newMap.Get(), static_cast<std::size_t>(newMap.Size()));
        return;
    }
    DropAreaMap();
    if (!newMap.Get()) return;
    hAreaMap.Swap(newMap);
    pAreaMap = static_cast<float*>(hAreaMap.Get());
    iAreaMapWidth = iWidth;
    iAreaMapHeight = iHeight;
}

// A map of this size is kept, whatever it holds. On failure there is none.
bool CcCalibration::MakeAreaMap(int iWidth, int iHeight) {
    if (pAreaMap && iAreaMapWidth == iWidth && iAreaMapHeight == iHeight) return true;
    DropAreaMap();
    const kest::Size64 bytes = kest::AreaMapBytes(iWidth, iHeight);
    pAreaMap = bytes > 0 ? static_cast<float*>(hAreaMap.Allocate(bytes)) : nullptr;
    if (!pAreaMap) return false;
    iAreaMapWidth = iWidth;
    iAreaMapHeight = iHeight;
    return true;
}
