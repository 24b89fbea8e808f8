// The clipboard mark: the entry Copy or Cut marked, and the lines of its subtree taken at that
// moment (a paste rebuilds items from them, so later edits of the entry do not reach it).
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/LineStore.h"
#include "base/TreeStore.h"

enum class ClipMode : std::uint8_t { None = 0, Cut = 1, Copy = 2 };

struct CClipMark {
    ClipMode mode = ClipMode::None;
    HTREEITEM marked = nullptr;
    std::string name;  // the entry's label when it was marked
    // Shared with the undo history, which gives a mark back with the lines it had.
    std::shared_ptr<const CLineStore> lines;

    bool operator==(const CClipMark&) const = default;
};
