// The peer's way to do the works.
#include "Peers.h"

#if KEST_BENCH_OPENCV

#include <memory>
#include <opencv2/imgproc.hpp>

namespace bench {
namespace {

constexpr int rows = 3000;  // of the 12 megapixels

cv::Mat Colour(Bytes& bytes) { return {rows, static_cast<int>(bytes.size() / 3 / rows), CV_8UC3, bytes.data()}; }

const cv::Scalar paint(20, 10, 255);

/// Copies the backup into the picture and paints where `find(backup, mask)` sets the mask.
template <class Find>
Run Paint(Bytes& backup, Bytes& picture, Find find) {
    return [from = Colour(backup), to = Colour(picture), mask = cv::Mat(), find]() mutable {
        find(from, mask);
        from.copyTo(to);
        to.setTo(paint, mask);
    };
}

cv::Mat MatrixOf(Transform transform) {
    cv::Mat matrix(3, 3, CV_64F);
    for (int i = 0; i < 9; ++i) matrix.at<double>(i / 3, i % 3) = transform[i / 3][i % 3];
    return matrix;
}

template <class Sample>
Run ScanAndMap(std::vector<Sample>& samples, int type) {
    return [from = cv::Mat(rows, static_cast<int>(samples.size() / rows), type, samples.data()),
            to = cv::Mat()]() mutable {
        double smallest, largest;
        cv::minMaxLoc(from, &smallest, &largest);
        const double scale = 255.0 / (largest - smallest);
        from.convertTo(to, CV_8U, scale, -smallest * scale);
    };
}

}  // namespace

void UseOneThread() { cv::setNumThreads(1); }

Run PeerToHsl(Bytes& rgb, Bytes& hsl) {
    return [from = Colour(rgb), to = Colour(hsl)]() mutable { cv::cvtColor(from, to, cv::COLOR_BGR2HLS_FULL); };
}

Run PeerToRgb(Bytes& hsl, Bytes& rgb) {
    return [from = Colour(hsl), to = Colour(rgb)]() mutable { cv::cvtColor(from, to, cv::COLOR_HLS2BGR_FULL); };
}

Run PeerPaintLuminance(Bytes& backup, Bytes& picture, float low, float high) {
    return Paint(backup, picture, [=, gray = cv::Mat()](const cv::Mat& from, cv::Mat& mask) mutable {
        cv::cvtColor(from, gray, cv::COLOR_BGR2GRAY);
        cv::inRange(gray, low, high, mask);
    });
}

Run PeerPaintChannel(Bytes& backup, Bytes& picture, int channel, float low, float high) {
    return Paint(backup, picture, [=, plane = cv::Mat()](const cv::Mat& from, cv::Mat& mask) mutable {
        cv::extractChannel(from, plane, channel);
        cv::inRange(plane, low, high, mask);
    });
}

Run PeerPaintBox(Bytes& backup, Bytes& picture, std::array<int, 3> low, std::array<int, 3> high) {
    return Paint(backup, picture, [=](const cv::Mat& from, cv::Mat& mask) {
        cv::inRange(from, cv::Scalar(low[0], low[1], low[2]), cv::Scalar(high[0], high[1], high[2]), mask);
    });
}

Run PeerMapWords(std::vector<std::uint16_t>& samples) {
    return [from = cv::Mat(rows, static_cast<int>(samples.size() / rows), CV_16U, samples.data()),
            to = cv::Mat()]() mutable { from.convertTo(to, CV_8U, 255.0 / 59000, -255.0 * 1000 / 59000); };
}

Run PeerScanAndMap(std::vector<std::int32_t>& samples) { return ScanAndMap(samples, CV_32S); }
Run PeerScanAndMap(std::vector<float>& samples) { return ScanAndMap(samples, CV_32F); }

Run PeerCutRect(Bytes& picture, int side, Bytes& region, int margin) {
    const int size = side - 2 * margin;
    return [from = cv::Mat(side, side, CV_8U, picture.data()), to = cv::Mat(size, size, CV_8U, region.data()),
            rect = cv::Rect(margin, margin, size, size)]() mutable { from(rect).copyTo(to); };
}

Run PeerCutEllipse(Bytes& picture, int side, Bytes& region, int margin) {
    const int size = side - 2 * margin;
    return [=, from = cv::Mat(side, side, CV_8U, picture.data()), to = cv::Mat(size, size, CV_8U, region.data()),
            rect = cv::Rect(margin, margin, size, size)]() mutable {
        cv::Mat mask = cv::Mat::zeros(size, size, CV_8U);
        cv::ellipse(mask, {size / 2, size / 2}, {size / 2, size / 2}, 0, 0, 360, 255, cv::FILLED);
        from(rect).copyTo(to, mask);
    };
}

Run PeerCutOutline(Bytes& picture, int side, const Points& outline, int margin, int regionSide) {
    auto polygon = std::make_shared<std::vector<std::vector<cv::Point>>>(1);
    for (const kest::IntPoint& point : outline) polygon->front().emplace_back(point.x - margin, point.y - margin);
    return
        [=, from = cv::Mat(side, side, CV_8U, picture.data()), to = cv::Mat(regionSide, regionSide, CV_8U)]() mutable {
            cv::Mat mask = cv::Mat::zeros(regionSide, regionSide, CV_8U);
            cv::fillPoly(mask, *polygon, 255);
            from(cv::Rect(margin, margin, regionSide, regionSide)).copyTo(to, mask);
        };
}

Run PeerRasterise(const Points& starts, const Points& ends, Points& chain) {
    return [=, &chain] {
        kest::IntPoint* out = chain.data();
        for (std::size_t i = 0; i < starts.size(); ++i) {
            cv::LineIterator line(cv::Point(starts[i].x, starts[i].y), cv::Point(ends[i].x, ends[i].y), 8);
            for (int k = 1; k < line.count; ++k, ++line) *out++ = {line.pos().x, line.pos().y};
        }
    };
}

Run PeerAreaMap(Transform transform, int width, int height) {
    // World points of the picture with a pixel around it, differences across two pixels, their lengths' product.
    return [=, matrix = MatrixOf(transform)] {
        cv::Mat grid(height + 2, width + 2, CV_32FC2), world;
        for (int y = 0; y < grid.rows; ++y)
            for (int x = 0; x < grid.cols; ++x)
                grid.at<cv::Vec2f>(y, x) = {static_cast<float>(x - 1), static_cast<float>(y - 1)};
        cv::perspectiveTransform(grid, world, matrix);
        const cv::Mat across = world(cv::Rect(2, 1, width, height)) - world(cv::Rect(0, 1, width, height));
        const cv::Mat along = world(cv::Rect(1, 2, width, height)) - world(cv::Rect(1, 0, width, height));
        cv::Mat parts[2], lengths[2], area;
        for (int i = 0; i < 2; ++i) {
            cv::split(i == 0 ? across : along, parts);
            cv::magnitude(parts[0], parts[1], lengths[i]);
        }
        cv::multiply(lengths[0], lengths[1], area, 0.25);
    };
}

Run PeerToWorld(Transform transform, std::vector<tagPoints>& image, std::vector<tagPoints>& world) {
    const int count = static_cast<int>(image.size());
    return [=, matrix = MatrixOf(transform), from = cv::Mat(1, count, CV_32FC2, image.data()),
            to = cv::Mat(1, count, CV_32FC2, world.data())]() mutable { cv::perspectiveTransform(from, to, matrix); };
}

}  // namespace bench

#else

namespace bench {

void UseOneThread() {}
Run PeerToHsl(Bytes&, Bytes&) { return {}; }
Run PeerToRgb(Bytes&, Bytes&) { return {}; }
Run PeerPaintLuminance(Bytes&, Bytes&, float, float) { return {}; }
Run PeerPaintChannel(Bytes&, Bytes&, int, float, float) { return {}; }
Run PeerPaintBox(Bytes&, Bytes&, std::array<int, 3>, std::array<int, 3>) { return {}; }
Run PeerMapWords(std::vector<std::uint16_t>&) { return {}; }
Run PeerScanAndMap(std::vector<std::int32_t>&) { return {}; }
Run PeerScanAndMap(std::vector<float>&) { return {}; }
Run PeerCutRect(Bytes&, int, Bytes&, int) { return {}; }
Run PeerCutEllipse(Bytes&, int, Bytes&, int) { return {}; }
Run PeerCutOutline(Bytes&, int, const Points&, int, int) { return {}; }
Run PeerRasterise(const Points&, const Points&, Points&) { return {}; }
Run PeerAreaMap(Transform, int, int) { return {}; }
Run PeerToWorld(Transform, std::vector<tagPoints>&, std::vector<tagPoints>&) { return {}; }

}  // namespace bench

#endif
