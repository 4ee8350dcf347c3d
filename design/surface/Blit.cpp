#include "design/surface/Blit.h"

#include "design/surface/RunKernels.h"

#include <algorithm>
#include <cstdlib>

namespace kaart {

namespace {

using Piece = AxisMap::Piece;

Piece pieceOf(std::int64_t i, std::int64_t targetSize, std::int64_t sourceSize) {
    if (sourceSize == targetSize) {
        return {static_cast<int>(i), static_cast<int>(i) + 1};
    }
    if (sourceSize <= targetSize) {
        const auto first = static_cast<int>(
            ((2 * i + 1) * sourceSize + 2 * targetSize - 1) / (2 * targetSize) - 1);
        return {first, first + 1};
    }
    // The centre of source pixel j lies in target pixel i for i <= (2j + 1) n / 2k < i + 1.
    const auto firstCentreFrom = [&](std::int64_t edge) {
        const std::int64_t doubled = 2 * edge * sourceSize - targetSize;
        return static_cast<int>(doubled <= 0 ? 0
                                             : (doubled + 2 * targetSize - 1) / (2 * targetSize));
    };
    return {firstCentreFrom(i), firstCentreFrom(i + 1)};
}

void combineRow(Pixel* target, const Pixel* source, std::size_t count, RasterOp rop) {
    constexpr Pixel fourth = 0xFF000000U;
    switch (rop) {
    case RasterOp::Copy:
        copyRun(target, source, count);
        break;
    case RasterOp::And:
        std::transform(source, source + count, target, target,
                       [](Pixel s, Pixel t) { return (s & t) | fourth; });
        break;
    case RasterOp::MergePaint:
        std::transform(source, source + count, target, target,
                       [](Pixel s, Pixel t) { return ~s | t | fourth; });
        break;
    }
}

bool isSingle(const Piece& piece) {
    return piece.last - piece.first == 1;
}

/// 1 if the pieces are neighbouring pixels in order, -1 in reverse order, otherwise 0.
int direction(const std::vector<Piece>& pieces) {
    const int step = pieces.size() > 1 && pieces[1].first < pieces[0].first ? -1 : 1;
    int expected = pieces[0].first;
    for (const Piece& piece : pieces) {
        if (!isSingle(piece) || piece.first != expected) {
            return 0;
        }
        expected += step;
    }
    return step;
}

/// The mean of a block of pixels, channel by channel, to the nearest whole number.
Pixel meanOf(ConstPixelSpan source, const Piece& columns, const Piece& rows) {
    std::uint64_t blue = 0;
    std::uint64_t green = 0;
    std::uint64_t red = 0;
    for (int y = rows.first; y < rows.last; ++y) {
        for (const Pixel* p = source.row(y) + columns.first; p != source.row(y) + columns.last;
             ++p) {
            blue += *p & 0xFFU;
            green += *p >> 8 & 0xFFU;
            red += *p >> 16 & 0xFFU;
        }
    }
    const auto count = static_cast<std::uint64_t>(columns.last - columns.first) *
                       static_cast<std::uint64_t>(rows.last - rows.first);
    const auto mean = [count](std::uint64_t sum) {
        return static_cast<Pixel>((2 * sum + count) / (2 * count));
    };
    return 0xFF000000U | mean(red) << 16 | mean(green) << 8 | mean(blue);
}

void fillRow(std::vector<Pixel>& row, ConstPixelSpan source, const AxisMap& columns,
             const Piece& rows) {
    if (isSingle(rows) && isSingle(columns.pieces.front())) {
        const Pixel* from = source.row(rows.first);
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = from[columns.pieces[i].first];
        }
        return;
    }
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = meanOf(source, columns.pieces[i], rows);
    }
}

} // namespace

AxisMap AxisMap::make(BlitAxis target, int targetLimit, BlitAxis source, int sourceLimit) {
    const int n = std::abs(target.size);
    const int k = std::abs(source.size);
    AxisMap map;
    if (n == 0 || k == 0) {
        return map;
    }
    const int targetStart = target.size < 0 ? target.start - n + 1 : target.start;
    const int sourceStart = source.size < 0 ? source.start - k + 1 : source.start;
    const bool mirrored = (target.size < 0) != (source.size < 0);
    const int first = std::max(0, -targetStart);
    const int last = std::min(n, targetLimit - targetStart);
    map.pieces.reserve(static_cast<std::size_t>(std::max(0, last - first)));
    for (int i = first; i < last; ++i) {
        Piece piece = pieceOf(mirrored ? n - 1 - i : i, n, k);
        piece.first = std::max(0, piece.first + sourceStart);
        piece.last = std::min(sourceLimit, piece.last + sourceStart);
        if (piece.first < piece.last) {
            if (map.pieces.empty()) {
                map.start = targetStart + i;
            }
            map.pieces.push_back(piece);
        } else if (!map.pieces.empty()) {
            break;
        }
    }
    return map;
}

QRect blit(PixelSpan target, const BlitRect& to, ConstPixelSpan source, const BlitRect& from,
           RasterOp rop) {
    const AxisMap columns = AxisMap::make(to.x, target.width, from.x, source.width);
    const AxisMap rows = AxisMap::make(to.y, target.height, from.y, source.height);
    if (columns.pieces.empty() || rows.pieces.empty()) {
        return {};
    }
    const std::size_t width = columns.pieces.size();
    const int order = direction(columns.pieces);
    std::vector<Pixel> row(order > 0 ? 0 : width);
    int previous = -1;
    for (std::size_t i = 0; i < rows.pieces.size(); ++i) {
        const Piece& piece = rows.pieces[i];
        Pixel* out = target.row(rows.start + static_cast<int>(i)) + columns.start;
        if (order > 0 && isSingle(piece)) {
            combineRow(out, source.row(piece.first) + columns.pieces[0].first, width, rop);
            continue;
        }
        if (order < 0 && isSingle(piece) && rop == RasterOp::Copy) {
            reverseRun(out, source.row(piece.first) + columns.pieces.back().first, width);
            continue;
        }
        row.resize(width);
        // Enlarging shows a source row several times: it is stretched once.
        if (!isSingle(piece) || piece.first != previous) {
            fillRow(row, source, columns, piece);
            previous = isSingle(piece) ? piece.first : -1;
        }
        combineRow(out, row.data(), width, rop);
    }
    return {columns.start, rows.start, static_cast<int>(width),
            static_cast<int>(rows.pieces.size())};
}

} // namespace kaart
