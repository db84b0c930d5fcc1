// Files of every format: written byte for byte as ever, on every system; those of earlier versions are read; and
// objects of any content come back from a stream as they were.
#include <filesystem>

#include "support/ClassTests.h"

using namespace test;

namespace {

const std::string golden = DataPath("golden/");

/// Samples of all sizes and both signs where the class has them; a binary image has 0 and 1.
void Fill(CcImage& image, std::mt19937& random) {
    int height = 0, width = 0;
    image.GetHeightWidth(&height, &width);
    const bool isBinary = image.GetImageType() == KEST_IMAGE_BINARY;
    KestVisitSamples(image, [&](auto* samples) {
        using Sample = std::remove_pointer_t<decltype(samples)>;
        for (int i = 0; samples && i < width * height; ++i)
            if constexpr (std::is_same_v<Sample, RGBTRIPLE>)
                samples[i] = {static_cast<BYTE>(random()), static_cast<BYTE>(random()), static_cast<BYTE>(random())};
            else if constexpr (std::is_same_v<Sample, float>)
                samples[i] = static_cast<float>(static_cast<int>(random())) / 65536;
            else
                samples[i] = static_cast<Sample>(isBinary ? random() % 2 : random());
    });
}

std::unique_ptr<CcRoiBase> RandomRoi(std::mt19937& random) {
    std::unique_ptr<CcRoiBase> roi;
    const auto place = [&] { return static_cast<LONG>(random() % 500); };
    const auto boxed = [&](auto made) {
        SetBox(*made, {place(), place(), 500 + place(), 500 + place()});
        roi = std::move(made);
    };
    const auto outlined = [&](auto made) {
        std::vector<POINT> points(1 + random() % 20);
        for (POINT& point : points) point = {place(), place()};
        SetOutline(*made, points);
        roi = std::move(made);
    };
    switch (random() % 8) {
        case 0: boxed(std::make_unique<CcRoiRect>()); break;
        case 1: boxed(std::make_unique<CcRoiEllipse>()); break;
        case 2: boxed(std::make_unique<CcRoiLine>()); break;
        case 3: boxed(std::make_unique<CcRoiPoint>()); break;
        case 4: outlined(std::make_unique<CcRoiFreeHand>()); break;
        case 5: outlined(std::make_unique<CcRoiFreeHandLine>()); break;
        case 6: outlined(std::make_unique<CcRoiPolyFreeHand>()); break;
        default: outlined(std::make_unique<CcRoiPolyLine>()); break;
    }
    roi->SetName(("roi " + std::to_string(random() % 100)).c_str());
    return roi;
}

template <class Image>
std::unique_ptr<CcHLObject> RandomImage(std::mt19937& random) {
    auto image = std::make_unique<Image>();
    const int height = 1 + static_cast<int>(random() % 6), width = 1 + static_cast<int>(random() % 9);
    image->MakeBlankBMP(height, width, 0, "image");
    Fill(*image, random);
    for (unsigned i = random() % 3; i > 0; --i) image->GetListROI()->InsertTail(RandomRoi(random).release());
    return image;
}

std::unique_ptr<CcHLObject> RandomBag(std::mt19937& random) {
    auto bag = std::make_unique<CcPropertyBag>();
    for (unsigned i = random() % 6; i > 0; --i) {
        const std::string key = "key " + std::to_string(random() % 4), text(1 + random() % 300, 't');
        switch (random() % 4) {
            case 0: bag->PutInt(key.c_str(), static_cast<int>(random())); break;
            case 1: bag->PutDouble(key.c_str(), random() / 7.0); break;
            case 2: bag->PutString(key.c_str(), text.c_str()); break;
            default: bag->PutBlob(key.c_str(), text.data(), static_cast<long>(text.size())); break;
        }
    }
    return bag;
}

std::unique_ptr<CcCalibration> RandomCalibration(std::mt19937& random) {
    auto calibration = std::make_unique<CcCalibration>();
    const auto jitter = [&] { return static_cast<float>(random() % 10); };
    tagPoints image[] = {{jitter(), jitter()}, {90 + jitter(), jitter()}, {80, 70 + jitter()}, {jitter(), 60}};
    tagPoints world[] = {{0, 0}, {100, 0}, {100, 75}, {0, 75}};
    calibration->DoCalibration(image, world, 4, 8, 6);
    calibration->SetUnitsOfMeasure("mm");
    return calibration;
}

std::unique_ptr<CcHLObject> RandomObject(std::mt19937& random, int depth = 0) {
    switch (random() % 10) {
        case 0: return RandomImage<CcGrayImage256>(random);
        case 1: return RandomImage<CcBinaryImage>(random);
        case 2: return RandomImage<CcGrayImageInt16>(random);
        case 3: return RandomImage<CcGrayImageInt32>(random);
        case 4: return RandomImage<CcGrayImageFloat>(random);
        case 5: return RandomImage<Cc24BitRGBImage>(random);
        case 6: return RandomImage<Cc24BitHSLImage>(random);
        case 7: return RandomBag(random);
        case 8: return RandomRoi(random);
        default: break;
    }
    auto list = std::make_unique<CcList>();
    list->SetDestructionType(1);
    for (unsigned i = depth < 3 ? random() % 5 : 0; i > 0; --i)
        list->InsertTail(RandomObject(random, depth + 1).release());
    return list;
}

/// Writes a file of every format: objects made anew, or read from the golden files.
class Writer {
public:
    Writer(std::string newFolder, bool isFromGolden) : folder(std::move(newFolder)), fromGolden(isFromGolden) {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directory(folder);
    }

    void WriteAll() {
        Picture<CcGrayImage256>("gray.bmp");
        Picture<CcBinaryImage>("binary.bmp");
        Picture<CcGrayImageInt16>("int16.bmp");
        Picture<CcGrayImageInt32>("int32.bmp");
        Picture<CcGrayImageFloat>("float.bmp");
        Picture<Cc24BitRGBImage>("rgb.bmp");
        Picture<Cc24BitHSLImage>("hsl.bmp");
        Shape<CcRoiRect>("rect.roi");
        Shape<CcRoiEllipse>("ellipse.roi");
        Shape<CcRoiLine>("line.roi");
        Shape<CcRoiPoint>("point.roi");
        Outline<CcRoiFreeHand>("freehand.roi");
        Outline<CcRoiFreeHandLine>("freeline.roi");
        Outline<CcRoiPolyFreeHand>("polygon.roi");
        Outline<CcRoiPolyLine>("polyline.roi");
        Calibration("plate.cal");
        Appearance("graph.gap");
        Stream("objects.ost");
    }

private:
    template <class Image>
    void Picture(const std::string& file) {
        Image image;
        if (fromGolden) {
            ASSERT_EQ(image.OpenBMPFile((golden + file).c_str()), 0) << file;
        } else {
            image.MakeBlankBMP(5, 8, 0, "golden");
            Fill(image, random);
            // What shows a wide image follows its samples once it is opened.
            image.SaveBMPFile((folder + file).c_str());
            image.OpenBMPFile((folder + file).c_str());
        }
        EXPECT_EQ(image.SaveBMPFile((folder + file).c_str()), 0) << file;
    }

    void Roi(CcRoiBase& roi, const std::string& file) {
        if (fromGolden) {
            ASSERT_EQ(roi.Restore((golden + file).c_str()), 0) << file;
        }
        EXPECT_EQ(roi.Save((folder + file).c_str()), 0) << file;
    }
    template <class Shaped>
    void Shape(const std::string& file) {
        Roi(*Boxed<Shaped>(fromGolden ? RECT{0, 0, 1, 1} : RECT{3, 4, 30, 21}), file);
    }
    template <class Outlined>
    void Outline(const std::string& file) {
        Outlined roi;
        if (!fromGolden) SetOutline(roi, {{3, 4}, {30, 6}, {21, 25}, {9, 17}});
        Roi(roi, file);
    }

    void Calibration(const std::string& file) {
        CcCalibration read;
        if (fromGolden) {
            ASSERT_EQ(read.Open((golden + file).c_str()), 0);
        }
        const auto made = RandomCalibration(random);
        auto& calibration = fromGolden ? read : *made;
        EXPECT_EQ(calibration.Save((folder + file).c_str()), 0);
    }

    void Appearance(const std::string& file) {
        CcGraph graph;
        if (fromGolden)
            EXPECT_EQ(graph.RestoreAppearance((golden + file).c_str()), 0);
        else
            graph.SetMinMaxValues(-5, 250, 0, 1000, 0, 1, 2, 3);
        EXPECT_EQ(graph.SaveAppearance((folder + file).c_str()), 0);
    }

    void Stream(const std::string& file) {
        CcFileObjectStorage to, from;
        ASSERT_EQ(to.Open((folder + file).c_str(), GENERIC_READ | GENERIC_WRITE), 0);
        if (fromGolden) {
            ASSERT_EQ(from.Open((golden + file).c_str(), GENERIC_READ), 0);
        }
        for (int i = 0; i < 40; ++i) {
            CcHLObject* read = nullptr;
            if (fromGolden) {
                ASSERT_EQ(from.GetNextObject(&read), 0) << i;
            }
            const std::unique_ptr<CcHLObject> object(fromGolden ? read : RandomObject(random).release());
            EXPECT_EQ(to.PutObject(object.get()), 0) << i;
        }
    }

    std::string folder;
    bool fromGolden;
    std::mt19937 random{2026};
};

/// The files of a folder with their bytes.
std::map<std::string, std::vector<std::uint8_t>> FilesIn(const std::string& folder) {
    std::map<std::string, std::vector<std::uint8_t>> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files[entry.path().filename().string()] = TemporaryFile::ReadAll(entry.path().string());
    return files;
}

}  // namespace

// A new format gets its row in WriteAll, and its golden file from "golden-made" once it has been looked at. A golden
// file never changes: it stands for those that users have.
TEST(Files, AreWrittenAsEverAndReadByEveryVersion) {
    const auto expected = FilesIn(golden);
    for (const bool fromGolden : {false, true}) {
        const std::string folder = fromGolden ? "golden-again/" : "golden-made/";
        Writer(folder, fromGolden).WriteAll();
        const auto written = FilesIn(folder);
        EXPECT_EQ(written.size(), expected.size());
        for (const auto& [name, bytes] : written) {
            ASSERT_TRUE(expected.contains(name)) << name;
            EXPECT_TRUE(bytes == expected.at(name)) << folder << name;
        }
    }
}

TEST(Files, TenThousandObjectsComeBackAsTheyWere) {
    std::mt19937 random(1);
    for (int i = 0; i < 10000; ++i) {
        const std::unique_ptr<CcHLObject> object = RandomObject(random);
        const Bytes stored = StoredBytes(*object);
        CcHLObject* read = nullptr;
        ASSERT_EQ(HandMade(stored).stream.GetNextObject(&read), 0) << i;
        const std::unique_ptr<CcHLObject> again(read);
        ASSERT_EQ(StoredBytes(*again), stored) << i;
    }
}
