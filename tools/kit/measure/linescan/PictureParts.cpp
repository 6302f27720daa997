#include "tools/kit/measure/linescan/PictureParts.h"

#include <algorithm>

namespace {

/// The runs of one kind, and which of them belong together: disjoint sets.
class RunSets
{
public:
    std::vector<PixelRun> runs;

    void add(const PixelRun &run)
    {
        m_parents.push_back(runs.size());
        runs.push_back(run);
    }

    std::size_t root(std::size_t index)
    {
        while (m_parents[index] != index) {
            m_parents[index] = m_parents[m_parents[index]];
            index = m_parents[index];
        }
        return index;
    }

    void join(std::size_t a, std::size_t b) { m_parents[root(b)] = root(a); }

private:
    std::vector<std::size_t> m_parents;
};

void addRuns(const GreyPicture &picture, float threshold, bool isBright, int y, RunSets &sets)
{
    for (int x = 0; x < picture.width; ++x) {
        if ((picture.at(x, y) > threshold) != isBright)
            continue;
        const int first = x;
        while (x + 1 < picture.width && (picture.at(x + 1, y) > threshold) == isBright)
            ++x;
        sets.add({y, first, x});
    }
}

/// Joins the runs from `begin` on with those of the line above, which are from `above` to `begin`.
void joinWithAbove(RunSets &sets, std::size_t above, std::size_t begin)
{
    std::size_t upper = above;
    for (std::size_t i = begin; i < sets.runs.size(); ++i) {
        const PixelRun run = sets.runs[i];
        while (upper < begin && sets.runs[upper].last + 1 < run.first)
            ++upper;
        for (std::size_t j = upper; j < begin && sets.runs[j].first <= run.last + 1; ++j)
            sets.join(j, i);
    }
}

void addParts(
    const GreyPicture &picture, float threshold, bool isBright, int minSize, std::vector<PicturePart> &parts)
{
    RunSets sets;
    std::size_t above = 0;
    for (int y = 0; y < picture.height; ++y) {
        const std::size_t begin = sets.runs.size();
        addRuns(picture, threshold, isBright, y, sets);
        joinWithAbove(sets, above, begin);
        above = begin;
    }
    std::vector<PicturePart> all(sets.runs.size());
    for (std::size_t i = 0; i < sets.runs.size(); ++i) {
        const PixelRun &run = sets.runs[i];
        PicturePart &part = all[sets.root(i)];
        part.isBright = isBright;
        part.runs.push_back(run);
        part.left = std::min(part.left, run.first);
        part.right = std::max(part.right, run.last);
        part.top = std::min(part.top, run.y);
        part.bottom = std::max(part.bottom, run.y);
    }
    for (PicturePart &part : all)
        if (!part.runs.empty() && part.width() >= minSize && part.height() >= minSize)
            parts.push_back(std::move(part));
}

} // namespace

bool PicturePart::touchesBorderOf(const GreyPicture &picture) const
{
    return left == 0 || top == 0 || right == picture.width - 1 || bottom == picture.height - 1;
}

std::vector<PicturePart> pictureParts(const GreyPicture &picture, float threshold, int minSize)
{
    std::vector<PicturePart> parts;
    for (const bool isBright : {false, true})
        addParts(picture, threshold, isBright, minSize, parts);
    const auto area
        = [](const PicturePart &part) { return static_cast<std::int64_t>(part.width()) * part.height(); };
    std::stable_sort(parts.begin(), parts.end(),
        [area](const PicturePart &left, const PicturePart &right) { return area(left) > area(right); });
    return parts;
}
