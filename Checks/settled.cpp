#include "digests.h"

namespace vecmat::digest {

std::span<const Digest> settledDigests()
{
    static const std::vector<Digest> digests{
#include "digests.inc"
    };
    return digests;
}

} // namespace vecmat::digest
