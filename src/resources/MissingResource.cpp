#include <cstdio>
#include <cstdlib>

#include "resources/Resources.h"

void MissingResource(const char* kind, int id) {
    std::fprintf(stderr, "harnwick: no %s resource %d\n", kind, id);
    std::abort();
}
