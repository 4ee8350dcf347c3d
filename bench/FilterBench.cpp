// Every filter and pass of the table: from one picture to another, beside the loop word for word
// and beside memcpy as the limit. Filters in place copy first.
#include "design/surface/Blit.h"
#include "design/surface/Random.h"
#include "filters/ColourFilters.h"
#include "filters/FilterTable.h"
#include "filters/MirrorCopies.h"
#include "tests/support/LiteralFilters.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

using namespace kaart;

namespace {

struct Size {
    const char* name;
    int width;
    int height;
    bool huge;
};
constexpr Size card = {"card", 440, 640, false};
constexpr Size photo = {"24MP", 6000, 4000, true};

/// A random picture and the one that is made of it.
class Pair {
public:
    explicit Pair(const Size& size)
        : size_(size),
          from_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)),
          to_(from_.size()) {
        for (Pixel& pixel : from_) {
            pixel = 0xFF000000U | static_cast<Pixel>(Rnd() * 0x1000000);
        }
    }
    ConstPixelSpan source() const { return {from_.data(), size_.width, size_.height}; }
    PixelSpan target() { return {to_.data(), size_.width, size_.height}; }
    void copy() { std::memcpy(to_.data(), from_.data(), from_.size() * sizeof(Pixel)); }

private:
    Size size_;
    std::vector<Pixel> from_;
    std::vector<Pixel> to_;
};

using Work = std::function<void(Pair& pictures)>;

void add(const std::string& op, const char* kind, const Size& size, const Work& work) {
    const std::string name = op + "/" + kind + "/" + size.name + "/t1";
    auto* entry = benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        Pair pictures(size);
        work(pictures);
        for (auto _ : state) {
            work(pictures);
            benchmark::DoNotOptimize(pictures.target().data);
            benchmark::ClobberMemory();
        }
    });
    if (size.huge) {
        entry->UseRealTime()->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
    }
}

void addBoth(const std::string& op, const char* kind, const Work& work) {
    add(op, kind, card, work);
    add(op, kind, photo, work);
}

/// An op whose result depends on what its target holds: the picture is copied first.
Work copyingFirst(const Work& work) {
    return [work](Pair& pictures) {
        pictures.copy();
        work(pictures);
    };
}

bool isInPlace(const std::string& op) {
    constexpr std::array inPlace = {"sharpen", "edge", "blur", "smooth", "defuse"};
    return std::ranges::find(inPlace, op) != inPlace.end();
}

void mirror(Pair& pictures, bool across) {
    const ConstPixelSpan source = pictures.source();
    const BlitAxis straightX = {0, source.width};
    const BlitAxis straightY = {0, source.height};
    blit(pictures.target(), {straightX, straightY}, source,
         {across ? BlitAxis{source.width - 1, -source.width} : straightX,
          across ? straightY : BlitAxis{source.height - 1, -source.height}},
         RasterOp::Copy);
}

using MapPass = void (*)(PixelSpan target, ConstPixelSpan source);
using CopyPass = void (*)(PixelSpan target, ConstPixelSpan source, int first, int last);

Work mapping(MapPass map) {
    return [map](Pair& pictures) { map(pictures.target(), pictures.source()); };
}
Work copying(CopyPass copy, bool half) {
    return [copy, half](Pair& pictures) {
        const int height = pictures.source().height;
        copy(pictures.target(), pictures.source(), 0, half ? halfOf(height) : height);
    };
}

/// The passes on spans, as the table runs them on a surface.
const std::vector<std::pair<std::string, Work>> passes = {
    {"dodge", mapping(FilterDodge)},
    {"modern", mapping(FilterModern)},
    {"sepia", mapping(FilterSepia)},
    {"flip_h", [](Pair& pictures) { mirror(pictures, true); }},
    {"flip_v", [](Pair& pictures) { mirror(pictures, false); }},
    {"copy_left", copying(CopyLeftSide, false)},
    {"copy_top", copying(CopyTopSide, true)},
    {"copy_corners", copying(CopyCorners, true)},
    {"inkleuren", mapping(FilterInkleuren)},
};

[[noreturn]] void unmeasured(const char* op) {
    std::fprintf(stderr, "%s stands in the table of filters, but is not measured\n", op);
    std::exit(1);
}

void addPlain(const char* op, std::int32_t parameter) {
    const LiteralFilter* literal = findLiteral(op);
    if (literal == nullptr) {
        unmeasured(op);
    }
    add(op, "plain", card, copyingFirst([literal, parameter](Pair& pictures) {
            literal->run(pictures.target(), pictures.source(), parameter);
        }));
}

void addFilter(const FilterRow& row, const FilterNumber& filter) {
    const Work work = [routine = filter.routine, parameter = row.parameter](Pair& pictures) {
        SilentRhythm rhythm;
        routine(pictures.target(), pictures.source(), parameter, rhythm);
    };
    addBoth(filter.op, "ours", isInPlace(filter.op) ? copyingFirst(work) : work);
    addPlain(filter.op, row.parameter);
}

void addPass(const char* op) {
    const auto found =
        std::ranges::find(passes, std::string(op), &std::pair<std::string, Work>::first);
    if (found == passes.end()) {
        unmeasured(op);
    }
    addBoth(op, "ours", found->second);
    addPlain(op, 0);
}

const bool registered = [] {
    const Work limit = [](Pair& pictures) { pictures.copy(); };
    addBoth("limit", "memcpy", limit);
    for (const FilterNumber& filter : filterNumbers()) {
        const auto row = std::ranges::find(filterTable(), filter.number, &FilterRow::number);
        if (row == filterTable().end()) {
            unmeasured(filter.op);
        }
        addFilter(*row, filter);
    }
    for (const FilterRow& row : filterTable()) {
        if (row.pass.run != nullptr) {
            addPass(row.pass.op);
        }
    }
    return true;
}();

} // namespace
