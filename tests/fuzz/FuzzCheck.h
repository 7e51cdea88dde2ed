#pragma once

#include <cstdio>
#include <cstdlib>

// A broken rule ends the run at once with its name, so that libFuzzer keeps the
// input and the replay of the corpus fails on it.
inline void fuzzCheck(bool holds, const char* rule)
{
    if (!holds) {
        std::fprintf(stderr, "fuzz rule broken: %s\n", rule);
        std::abort();
    }
}
