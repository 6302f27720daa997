#include "sdk/cvxcpp/DuplicateFilter.h"

#include "sdk/cvxcpp/CameraIndex.h"

#include <cstddef>

std::vector<std::vector<bool>> withoutDuplicates(
    const std::vector<std::vector<DuplicateCandidate>> &producers)
{
    std::vector<std::vector<bool>> isListed;
    for (const auto &candidates : producers)
        isListed.emplace_back(candidates.size(), false);
    CameraIndex listed;
    for (const bool isOwned : {true, false}) { // The owned cameras have precedence.
        for (std::size_t producer = 0; producer < producers.size(); ++producer) {
            for (std::size_t i = 0; i < producers[producer].size(); ++i) {
                const DuplicateCandidate &candidate = producers[producer][i];
                if (candidate.isOwned != isOwned || listed.hasSame(*candidate.identity, producer))
                    continue;
                listed.add(*candidate.identity, producer);
                isListed[producer][i] = true;
            }
        }
    }
    return isListed;
}
