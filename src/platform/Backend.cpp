#include "platform/Backend.h"

#include <cstdio>
#include <cstdlib>

namespace {
CBackend* g_pBackend = nullptr;
}

void SetBackend(CBackend* backend) {
    g_pBackend = backend;
}

CBackend& Backend() {
    if (g_pBackend == nullptr) {
        // A program error, not a user's: nothing can be shown without a backend.
        std::fputs("harnwick: no user interface backend in place\n", stderr);
        std::abort();
    }
    return *g_pBackend;
}
