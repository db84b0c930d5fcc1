// A printer whose port is a PostScript renderer, which writes each page as a BMP file.
#include "support/Printer.h"

#include <winspool.h>

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "support/Bytes.h"

namespace test {
namespace {

// Letter paper at 300 dots an inch, with a quarter inch of margin at the sides and half an inch above and below.
constexpr int pageWidth = 2550, pageHeight = 3300, margin = 75;

constexpr char printerDescription[] =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
    "*LanguageEncoding: ISOLatin1\n*PCFileName: \"KESTTEST.PPD\"\n*Manufacturer: \"Kest\"\n*Product: \"(Kest Page)\"\n"
    "*ModelName: \"Kest Page\"\n*NickName: \"Kest Page\"\n*ShortNickName: \"Kest Page\"\n*PSVersion: \"(3010.000) 0\"\n"
    "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n*DefaultResolution: 300dpi\n"
    "*OpenUI *PageSize: PickOne\n*DefaultPageSize: Letter\n*PageSize Letter: \"\"\n*CloseUI: *PageSize\n"
    "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: Letter\n*PageRegion Letter: \"\"\n*CloseUI: *PageRegion\n"
    "*DefaultImageableArea: Letter\n*ImageableArea Letter: \"18 36 594 756\"\n"
    "*DefaultPaperDimension: Letter\n*PaperDimension Letter: \"612 792\"\n"
    "*DefaultFont: Courier\n*Font Courier: Standard \"(002.004S)\" Standard ROM\n";

constexpr char pagePath[] = KEST_PRINTED_PAGE;

int ReadInt(const std::vector<std::uint8_t>& bytes, std::size_t at) {
    std::int32_t value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

/// The file is complete when it has the size that its header says.
bool IsComplete(const std::vector<std::uint8_t>& file) {
    return file.size() > 54 && static_cast<int>(file.size()) >= ReadInt(file, 2);
}

}  // namespace

bool InstallPrinter() {
    char name[] = "Kest Page", driver[] = "wineps.drv", environment[] = "Windows NT x86", processor[] = "winprint";
    char dataType[] = "RAW", description[] = "kesttest.ppd";
    char port[] = "|gs -q -dNOPAUSE -dBATCH -sDEVICE=bmp16m -r300 -g2550x3300 -sOutputFile=" KEST_PRINTED_PAGE " -";
    if (sizeof(void*) == 8) std::strcpy(environment, "Windows x64");
    BYTE folder[MAX_PATH];
    DWORD needed;
    if (!GetPrinterDriverDirectoryA(nullptr, environment, 1, folder, sizeof folder, &needed)) return false;
    std::ofstream(std::string(reinterpret_cast<char*>(folder)) + "\\3\\" + description, std::ios::binary)
        << printerDescription;
    DRIVER_INFO_3A driverInfo = {};
    driverInfo.cVersion = 3;
    driverInfo.pName = name;
    driverInfo.pEnvironment = environment;
    driverInfo.pDriverPath = driver;
    driverInfo.pDataFile = description;
    driverInfo.pConfigFile = driver;
    driverInfo.pDefaultDataType = dataType;
    AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driverInfo), APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY);
    PRINTER_INFO_2A printer = {};
    printer.pPrinterName = name;
    printer.pPortName = port;
    printer.pDriverName = name;
    printer.pPrintProcessor = processor;
    printer.pDatatype = dataType;
    // One that an earlier run left behind may write to another place.
    HANDLE handle = nullptr;
    PRINTER_DEFAULTSA access = {nullptr, nullptr, PRINTER_ALL_ACCESS};
    if (OpenPrinterA(name, &handle, &access)) {
        DeletePrinter(handle);
        ClosePrinter(handle);
    }
    handle = AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
    if (!handle) {
        std::printf("AddPrinter: error %lu\n", GetLastError());
        return false;
    }
    ClosePrinter(handle);
    return SetDefaultPrinterA(name);
}

Picture TakePrintedPage() {
    for (int tries = 0; tries < 200; ++tries, Sleep(50)) {
        const auto file = TemporaryFile::ReadAll(pagePath);
        if (!IsComplete(file)) continue;
        DeleteFileA(pagePath);
        Picture page{pageWidth - 2 * margin, pageHeight - 4 * margin, {}};
        const int offset = ReadInt(file, 10), width = ReadInt(file, 18), height = ReadInt(file, 22);
        if (width != pageWidth || height != pageHeight) {
            std::printf("page of %d x %d\n", width, height);
            return {};
        }
        const std::size_t rowBytes = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
        for (int y = 0; y < page.height; ++y)
            for (int x = 0; x < page.width; ++x) {
                const std::uint8_t* bgr = file.data() + offset +
                                          static_cast<std::size_t>(height - 1 - (y + 2 * margin)) * rowBytes +
                                          static_cast<std::size_t>(x + margin) * 3;
                page.pixels.push_back(bgr[2] << 16 | bgr[1] << 8 | bgr[0]);
            }
        return page;
    }
    return {};
}

}  // namespace test
