#include "platform/paths/volume.h"

#include <atomic>

namespace torvik {

namespace {

quint64 NextNumber()
{
    static std::atomic<quint64> last = 0;
    return ++last;
}

} // namespace

Volume::Volume() : number_(NextNumber()) {}

} // namespace torvik
