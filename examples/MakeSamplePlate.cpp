// Writes the sample plate: the picture, and a table of its objects' sizes.
//
//   MakeSamplePlate FOLDER      FOLDER/plate.bmp and FOLDER/plate-objects.csv
#include <cstdio>
#include <fstream>
#include <string>

#include "SamplePlate.h"

int main(int argc, char** argv) {
    if (argc < 2) {
        std::puts("usage: MakeSamplePlate FOLDER");
        return 2;
    }
    const std::string folder = argv[1];
    CcGrayImage256 image;
    if (!example::MakePlate(image)) return 1;
    const std::string path = folder + "/plate.bmp";
    DeleteFileA(path.c_str());
    image.SaveBMPFile(path.c_str());
    std::ofstream table(folder + "/plate-objects.csv");
    table << "Object,Area (square mm)\n";
    for (const example::PlateObject& object : example::PlateObjects())
        table << object.name << ',' << object.Area() << '\n';
    for (const example::PlateMark& mark : example::PlateMarks())
        table << "mark at " << mark.worldX << ' ' << mark.worldY << " mm,pixel " << mark.pixelX << ' ' << mark.pixelY
              << '\n';
    return std::ifstream(path).good() && table.good() ? 0 : 1;
}
