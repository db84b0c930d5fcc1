// Runs the programs of the programmer's guide. Exit status 1 when one of them finds that the guide is wrong.
#include <cstdio>

#include "Guide.h"

namespace {

int broken = 0;

struct Chapter {
    const char* name;
    void (*run)();
};

constexpr Chapter chapters[] = {
    {"showing", guide::Showing},
    {"drawing regions", guide::DrawingRegions},
    {"pixels", guide::WorkingOnPixels},
    {"cutting regions", guide::CuttingRegions},
    {"keeping objects", guide::KeepingObjects},
    {"streams", guide::Streams},
    {"thresholding", guide::Thresholding},
    {"colour", guide::Colour},
    {"wide images", guide::WideImages},
    {"measuring", guide::Measuring},
    {"graphs", guide::Graphs},
    {"tools", guide::Tools},
    {"own classes", guide::OwnClasses},
};

}  // namespace

void guide::Expect(bool holds, const char* what) {
    if (holds) return;
    std::printf("  DOES NOT HOLD: %s\n", what);
    ++broken;
}

int main() {
    for (const Chapter& chapter : chapters) {
        std::printf("%s\n", chapter.name);
        std::fflush(stdout);
        chapter.run();
    }
    std::printf("%d statements do not hold\n", broken);
    return broken == 0 ? 0 : 1;
}
