// Session files (".kvs"): a document as an object stream.
#include "document/Session.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string_view>
#include <vector>

#include "document/RoiFiles.h"
#include "document/SessionCalibration.h"
#include "platform/Busy.h"
#include "platform/InputStream.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr int formatVersion = 1;
constexpr const char *versionKey = "KestView::iVersion", *typeKey = "KestView::iImageType",
                     *nameKey = "KestView::szName", *pictureKey = "KestView::szPicturePath",
                     *calibrationKey = "KestView::szCalibrationFile", *tableKey = "KestView::iDisplayTable",
                     *zoomKey = "KestView::iZoom", *xKey = "KestView::iXOffset", *yKey = "KestView::iYOffset",
                     *samplesKey = "KestView::cSamples", *channelKey = "KestView::iChannel",
                     *bandsKey = "KestView::stBands", *sampleBandsKey = "KestView::stSampleBands";
constexpr int pathSize = 4 * MAX_PATH;
constexpr int editedTables[] = {101, 102, 103, 104}, mostChannels = 4;

/// A stream takes object names of at most 49 characters; longer ones are cut while it is written.
class ShortName {
public:
    explicit ShortName(CcHLObject& newObject) : object(newObject), name(newObject.GetName()) {
        object.SetName(CutForStreams(name).c_str());
    }
    ~ShortName() { object.SetName(name.c_str()); }
    ShortName(const ShortName&) = delete;
    ShortName& operator=(const ShortName&) = delete;

private:
    CcHLObject& object;
    std::string name;
};

std::string StringIn(CcPropertyBag& bag, const char* key) {
    char text[pathSize] = {};
    return bag.GetString(key, text, sizeof text) == 0 ? text : "";
}

int IntIn(CcPropertyBag& bag, const char* key, int otherwise) {
    int value = otherwise;
    return bag.GetInt(key, &value) == 0 ? value : otherwise;
}

/// A wide image around the 8-bit one that the stream brought, with the bag's samples and the same ROIs. Null when the
/// bag has no such samples, and without an error when memory is short, which the library tells.
std::unique_ptr<CcImage> Widen(CcImage& shown, int type, CcPropertyBag& bag, std::string& error) {
    const SIZE size = SizeOf(shown);
    auto wide = MakeImage(type, size.cy, size.cx, shown.GetName());
    CcList& rois = *shown.GetListROI();
    if (!wide || wide->GetListROI()->Reserve(rois.GetNumberOfObjects()) < 0) {
        error.clear();
        return nullptr;
    }
    long bytes = 0;
    if (bag.GetPropLength(samplesKey, KEST_PROPERTY_BLOB, &bytes) < 0 || bytes != SampleBytes(*wide)) return nullptr;
    if (bag.GetBlob(samplesKey, wide->GetBitMapImageData(), bytes) < 0) return nullptr;
    wide->ReScaleImageOnShow();
    while (CcHLObject* roi = rois.TakeOut(0)) wide->GetListROI()->InsertTail(roi);
    return wide;
}

/// A band of sample values, as it stands in the bag.
struct StoredBand {
    double low, high;
    std::int32_t red, green, blue, unused;
};

template <class Record>
std::vector<Record> RecordsIn(CcPropertyBag& bag, const char* key, std::size_t most) {
    long bytes = 0;
    constexpr auto recordBytes = static_cast<long>(sizeof(Record));
    if (bag.GetPropLength(key, KEST_PROPERTY_BLOB, &bytes) < 0 || bytes % recordBytes != 0 ||
        bytes > static_cast<long>(most) * recordBytes)
        return {};
    std::vector<Record> records(static_cast<std::size_t>(bytes / recordBytes));
    if (bag.GetBlob(key, records.data(), bytes) < 0) return {};
    return records;
}

/// Bands of levels: those of the pictures that have levels, and in older sessions of the wide ones too.
std::vector<Band> LevelBandsIn(CcPropertyBag& bag) {
    std::vector<Band> bands;
    for (const ThresholdTag& tag : RecordsIn<ThresholdTag>(bag, bandsKey, mostBands)) {
        if (!(tag.fLow >= 0 && tag.fLow < 255 && tag.fLow <= tag.fHigh && tag.fHigh <= 255)) return {};
        bands.push_back(BandOf(tag));
    }
    return bands;
}

/// To be asked for once the document shows its range, which the bands of older sessions are levels of.
std::vector<Band> BandsIn(CcPropertyBag& bag, Document& document) {
    std::vector<Band> bands;
    for (const StoredBand& stored : RecordsIn<StoredBand>(bag, sampleBandsKey, mostBands)) {
        if (std::isnan(stored.low) || std::isnan(stored.high)) return {};
        bands.push_back({stored.low, stored.high, RGB(stored.red, stored.green, stored.blue)});
    }
    if (!document.Class().isWide) return LevelBandsIn(bag);
    return bands.empty() ? SampleBandsOf(document.Image(), LevelBandsIn(bag)) : bands;
}

/// Calls put(key, records) for the bands, if there are some.
template <class Put>
void PutBands(Document& document, Put put) {
    const std::vector<Band>& bands = document.Bands();
    if (bands.empty()) return;
    std::vector<StoredBand> stored;
    std::vector<ThresholdTag> tags;
    for (const Band& band : bands) {
        tags.push_back(TagOf(band));
        stored.push_back(
            {band.low, band.high, GetRValue(band.colour), GetGValue(band.colour), GetBValue(band.colour), 0});
    }
    if (document.Class().isWide)
        put(sampleBandsKey, stored);
    else
        put(bandsKey, tags);
}

std::string CurveKey(int table, int channel) { return Format("KestView::stCurve%d.%d", table, channel); }

/// Points in ascending order between the levels 0 and 255; none when the bag has no such curve.
std::vector<tagPoints> CurveIn(CcPropertyBag& bag, int table, int channel) {
    constexpr std::size_t mostPoints = 256;
    std::vector<tagPoints> points = RecordsIn<tagPoints>(bag, CurveKey(table, channel).c_str(), mostPoints);
    if (points.size() < 2) return {};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isInOrder = std::isfinite(points[i].x) && (i == 0 || points[i - 1].x < points[i].x);
        if (!isInOrder || !(points[i].y >= 0 && points[i].y <= 255)) return {};
    }
    return points;
}

}  // namespace

bool IsSessionFile(const std::string& path) {
    if (ExtensionOf(path) == ".kvs") return true;
    // Under another name, a session begins as object streams do.
    constexpr std::string_view tag = "OST_OBJECTHEADER";
    char first[tag.size()] = {};
    std::ifstream(path, std::ios::binary).read(first, sizeof first);
    return std::string_view(first, sizeof first) == tag;
}

bool SaveSession(Document& document, const std::string& path, std::string& error) {
    const PlainPixels plain(document);
    CcImage& image = document.Image();
    const Busy busy("Saving " + FileNameOf(path), SampleBytes(image));
    DrawPlainly(image);
    std::unique_ptr<CcPropertyBag> bag(new CcPropertyBag);
    bag->SetName("KestView session");
    bool isWhole = true;
    const auto number = [&](const char* key, int value) { isWhole = bag->PutInt(key, value) == 0 && isWhole; };
    const auto text = [&](const char* key, const std::string& value) {
        if (!value.empty()) isWhole = bag->PutString(key, value.c_str()) == 0 && isWhole;
    };
    const auto block = [&](const std::string& key, const void* bytes, long long count) {
        isWhole = isWhole && count <= LONG_MAX && bag->PutBlob(key.c_str(), bytes, static_cast<long>(count)) == 0;
    };
    number(versionKey, formatVersion);
    number(typeKey, image.GetImageType());
    number(tableKey, document.DisplayTable());
    number(zoomKey, document.view.zoom);
    number(xKey, document.view.xOffset);
    number(yKey, document.view.yOffset);
    number(channelKey, document.Channel());
    text(nameKey, document.Name());
    text(pictureKey, document.picturePath);
    text(calibrationKey, document.calibrationPath);
    const auto records = [&](const std::string& key, const auto& list) {
        block(key, list.data(), static_cast<long long>(list.size() * sizeof list[0]));
    };
    PutBands(document, records);
    for (const auto& [place, points] : document.TableCurves()) records(CurveKey(place.first, place.second), points);
    if (document.Class().isWide) block(samplesKey, image.GetBitMapImageData(), SampleBytes(image));
    const auto write = [&](const std::string& newPath) {
        CcFileObjectStorage stream;
        const ShortName shortName(image);
        return stream.Open(newPath.c_str(), GENERIC_READ | GENERIC_WRITE) >= 0 && stream.PutObject(bag.get()) >= 0 &&
               stream.PutObject(&image) >= 0;
    };
    if (!isWhole) {
        error = "There is not enough memory to save the session.";
        return false;
    }
    // A wide picture travels as its samples and as the picture shown.
    const SIZE size = SizeOf(image);
    const long long bytes = SampleBytes(image) + static_cast<long long>(size.cx) * size.cy;
    if (!SaveWhole("The session", path, bytes, write, error)) return false;
    document.sessionPath = path;
    document.SetModified(false);
    return true;
}

std::unique_ptr<Document> OpenSession(const std::string& path, std::string& error, std::string& warning,
                                      const Question& mayOpen) {
    const Busy busy("Opening " + FileNameOf(path), BytesOfFile(path));
    error = FileNameOf(path) + " is not a KestView session, or it is damaged.";
    InputStream stream(path);
    if (!stream.IsOpen()) {
        error = "The file could not be opened:\n" + path;
        return nullptr;
    }
    CcHLObject* object = nullptr;
    if (stream.GetNextObject(&object) < 0) return nullptr;
    const std::unique_ptr<CcHLObject> firstObject(object);
    auto* bag = dynamic_cast<CcPropertyBag*>(firstObject.get());
    if (!bag || IntIn(*bag, versionKey, 0) != formatVersion || stream.GetNextObject(&object) < 0) return nullptr;
    std::unique_ptr<CcHLObject> secondObject(object);
    if (!dynamic_cast<CcImage*>(object)) return nullptr;
    std::unique_ptr<CcImage> image(static_cast<CcImage*>(secondObject.release()));
    if (!image->GetBitMapImageData() || !HoldsOnlyRois(*image->GetListROI())) return nullptr;

    const int type = IntIn(*bag, typeKey, KEST_IMAGE_NONE);
    const ImageClass* stored = ImageClassOf(type);
    if (!stored || (stored->isWide ? image->GetImageType() != KEST_IMAGE_GRAY256 : image->GetImageType() != type))
        return nullptr;
    if (stored->isWide && !(image = Widen(*image, type, *bag, error))) return nullptr;
    if (auto* hsl = dynamic_cast<Cc24BitHSLImage*>(image.get())) hsl->DoConvert();
    const std::string name = StringIn(*bag, nameKey);
    if (!name.empty()) image->SetName(name.c_str());

    auto document = std::make_unique<Document>(std::move(image));
    document->picturePath = StringIn(*bag, pictureKey);
    document->sessionPath = path;
    document->view.zoom = std::clamp(IntIn(*bag, zoomKey, 0), 0, largestZoom);
    document->view.xOffset = IntIn(*bag, xKey, 0);
    document->view.yOffset = IntIn(*bag, yKey, 0);
    document->SetChannel(IntIn(*bag, channelKey, -1));
    for (const int table : editedTables)
        for (int channel = 0; channel < mostChannels; ++channel)
            if (const std::vector<tagPoints> points = CurveIn(*bag, table, channel); !points.empty())
                document->SetTableCurve(table, channel, points);
    document->SetBands(BandsIn(*bag, *document));
    document->SetDisplayTable(static_cast<unsigned short>(std::clamp(IntIn(*bag, tableKey, 102), 100, 104)));
    const std::string calibrationPath = StringIn(*bag, calibrationKey);
    if (!calibrationPath.empty() && !OpenCalibrationOf(path, calibrationPath, mayOpen, *document)) {
        // It may be there again the next time.
        document->calibrationPath = calibrationPath;
        warning = "The session's calibration could not be opened:\n" + calibrationPath +
                  "\n\nLengths and areas are in pixels now.";
    }
    document->SetModified(false);
    error.clear();
    return document;
}

}  // namespace kestview
