// Pixels one by one, fast, and under a ROI; regions cut out.
#include <cstring>
#include <memory>

#include "Guide.h"

namespace guide {

void WorkingOnPixels() {
    CcGrayImage256 image;
    image.MakeBlankBMP(100, 200, 10, "pixels");

    // [pixel]
    float value = image(10, 20);          // column 10, row 20 from the bottom; -1.0 outside the image
    image = 255.0F;                       // writes the pixel addressed last, which is that one
    float between = image(10.5F, 20.0F);  // bilinear
    // [/pixel]
    Expect(value == 10.0F && between > 130.0F && between < 135.0F, "pixels are read, written and interpolated");

    // [fast-pixels]
    int height, width;
    image.GetHeightWidth(&height, &width);
    auto* bytes = static_cast<unsigned char*>(image.GetBitMapImageData());
    for (int y = 0; y < height; ++y)  // rows follow one another without padding, the bottom row first
        for (int x = 0; x < width; ++x) bytes[y * width + x] = static_cast<unsigned char>(x);
    // [/fast-pixels]
    Expect(image(57, 99) == 57.0F, "the operators see what was written through the pointer");

    CcRoiEllipse ellipse;
    RECT bounds = {20, 80, 60, 40};
    ellipse.SetRoiImageCord(&bounds);
    // [rows]
    double sum = 0;
    long long count = 0;
    const RECT* place = ellipse.GetBoundingRect();  // prepares the queries; null when memory is short
    if (!place) return;
    CcRoiRows rows(&ellipse);
    for (int y = static_cast<int>(place->bottom); y <= place->top; ++y) {
        if (y < 0 || y >= height) continue;  // a ROI may reach out of the image
        int runs;
        const KestSpan* spans = rows.GetSpans(y, &runs);
        for (int run = 0; run < runs; ++run)
            for (int x = spans[run].iFirst; x <= spans[run].iLast; ++x) {
                if (x < 0 || x >= width) continue;
                sum += bytes[y * width + x];
                ++count;
            }
    }
    // [/rows]
    KestRoiMeasurement measured;
    KestMeasureRoi(&image, &ellipse, &measured);
    Expect(count == measured.llPixels && sum / static_cast<double>(count) == measured.dMean,
           "the rows list what KestMeasureRoi counts");
}

void CuttingRegions() {
    CcGrayImage256 image;
    example::MakeSamplePicture(image);
    CcRoiRect roi;
    RECT record = {10, 59, 99, 10};
    roi.SetRoiImageCord(&record);

    // [cut]
    std::unique_ptr<CcImage> region(image.GetRegion(&roi, 0, 1));
    if (!region) return;
    region->SaveBMPFile("region.bmp");
    // [/cut]
    int height, width;
    region->GetHeightWidth(&height, &width);
    Expect(height == 49 && width == 92, "a region has the ROI's extent, widened to a multiple of four columns");
    Expect((*region)(5, 7) == image(15, 17), "it begins at the ROI's left column and bottom row");
    Expect(std::strstr(region->GetName(), "sample-") == region->GetName(), "it is named after image and ROI");
    CcGrayImage256 opened;
    Expect(opened.OpenBMPFile("region.bmp") == 0, "it opens again");
    DeleteFileA("region.bmp");
}

}  // namespace guide
