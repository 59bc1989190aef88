#include "maxhost/src/objects/SplineChunks.h"

#include <cmath>
#include <cstdint>

#include "maxhost/src/objects/ChunkData.h"

namespace maxhost {

namespace {

/// Stored in scene files; never change them.
constexpr USHORT kCountsChunk = 0x0230;
constexpr USHORT kCurvesChunk = 0x0231;
constexpr USHORT kKnotsChunk = 0x0232;
constexpr std::uint32_t kVersion = 1;

struct Counts {
    std::uint32_t version = 0, curves = 0;
};
struct Entry {
    std::uint32_t knots, closed;
};
static_assert(sizeof(Counts) == 8 && sizeof(Entry) == 8 && sizeof(SplineKnot) == 36,
              "stored raw in scene files");

bool isFinite(const Point3& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

/// What the chunks hold, before it is known to fit together.
struct Lists {
    Counts counts;
    std::vector<Entry> entries;
    std::vector<SplineKnot> knots;

    IOResult read(ILoad& load, USHORT id) {
        if (id == kCountsChunk) return readValue(load, counts);
        if (id == kCurvesChunk) return readArray(load, entries);
        if (id == kKnotsChunk) return readArray(load, knots);
        return IO_OK;
    }
    bool areWhole() const {
        if (counts.version != kVersion || counts.curves != entries.size()) return false;
        size_t left = knots.size();
        for (const Entry& entry : entries) {
            if (entry.knots == 0 || entry.knots > left || entry.closed > 1) return false;
            left -= entry.knots;
        }
        return left == 0 && std::all_of(knots.begin(), knots.end(), [](const SplineKnot& knot) {
                   return isFinite(knot.point) && isFinite(knot.in) && isFinite(knot.out);
               });
    }
};

}  // namespace

IOResult saveCurves(ISave& save, const std::vector<SplineCurve>& curves) {
    const Counts counts{kVersion, static_cast<std::uint32_t>(curves.size())};
    Lists lists;
    for (const SplineCurve& curve : curves) {
        lists.entries.push_back({static_cast<std::uint32_t>(curve.knots().size()), curve.closed() ? 1u : 0u});
        lists.knots.insert(lists.knots.end(), curve.knots().begin(), curve.knots().end());
    }
    IOResult result = writeChunk(save, kCountsChunk, &counts, sizeof counts);
    if (result == IO_OK) result = writeArray(save, kCurvesChunk, lists.entries.data(), lists.entries.size());
    if (result == IO_OK) result = writeArray(save, kKnotsChunk, lists.knots.data(), lists.knots.size());
    return result;
}

IOResult loadCurves(ILoad& load, std::vector<SplineCurve>& curves) {
    Lists lists;
    const IOResult read = readChunks(load, [&](USHORT id) { return lists.read(load, id); });
    if (read != IO_OK) return read;
    if (!lists.areWhole()) return IO_ERROR;

    std::vector<SplineCurve> loaded;
    auto knot = lists.knots.begin();
    for (const Entry& entry : lists.entries) {
        const auto end = knot + static_cast<std::ptrdiff_t>(entry.knots);
        loaded.emplace_back(std::vector<SplineKnot>(knot, end), entry.closed != 0);
        knot = end;
    }
    curves = std::move(loaded);
    return IO_OK;
}

}  // namespace maxhost
