#include "sample/geometry/wide_registers.h"

#if defined(__GNUC__) && defined(__x86_64__)
#include <immintrin.h>
#endif

namespace torvik::sample {

#if defined(__GNUC__) && defined(__x86_64__)

namespace {

__attribute__((target("avx"))) void ZeroUpperHalves()
{
    _mm256_zeroupper();
}

} // namespace

void LetGoOfWideRegisters()
{
    if (__builtin_cpu_supports("avx"))
        ZeroUpperHalves();
}

#else

void LetGoOfWideRegisters() {}

#endif

} // namespace torvik::sample
