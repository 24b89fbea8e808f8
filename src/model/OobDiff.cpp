#include "model/OobDiff.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "base/TreeWalk.h"
#include "model/OobItem.h"

namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

struct CPathLine {
    std::string path;
    std::string line;
    std::size_t parent;    // kNone at the top level
    std::size_t previous;  // the sibling before, kNone for the first
};

void AppendEscaped(std::string& path, std::string_view name) {
    for (char c : name) {
        if (c == '/' || c == '#' || c == '\\') {
            path += '\\';
        }
        path += c;
    }
}

// Every entry of tree in pre-order, with its path, its item's line and its neighbours.
std::vector<CPathLine> PathsOf(const CTreeStore& tree) {
    std::vector<CPathLine> entries;
    entries.reserve(tree.GetCount());
    std::vector<std::size_t> parents;  // the entry of each level above the current one
    std::vector<std::size_t> lastChild(tree.GetCount() + 1, kNone);  // of each entry, then top
    std::unordered_map<std::string, int> taken;
    taken.reserve(tree.GetCount());
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        parents.resize(static_cast<std::size_t>(walk.Depth()));
        const std::size_t parent = parents.empty() ? kNone : parents.back();
        std::string path = parent == kNone ? std::string() : entries[parent].path + '/';
        AppendEscaped(path, tree.GetItemText(walk.Current()));
        if (const int occurrence = ++taken[path]; occurrence > 1) {
            path += '#' + std::to_string(occurrence);
        }
        std::string line;
        if (const COobItem* item = ItemOf(tree, walk.Current())) {
            item->ToText(line);
        }
        std::size_t& last = lastChild[parent == kNone ? tree.GetCount() : parent];
        parents.push_back(entries.size());
        entries.push_back({std::move(path), std::move(line), parent, last});
        last = entries.size() - 1;
    }
    return entries;
}

// Marks in moved the siblings that left the order they had: of the siblings, in their new order,
// the longest run whose old positions still rise stays, and every other one moved. siblings
// holds the old positions (pre-order, so rising with the old sibling order).
void MarkMoved(const std::vector<std::size_t>& siblings, const std::vector<std::size_t>& newAt,
               std::vector<bool>& moved) {
    std::vector<std::size_t> tails;  // of each run length, the index its lowest end ends at
    std::vector<std::size_t> before(siblings.size(), kNone);
    for (std::size_t i = 0; i < siblings.size(); ++i) {
        const auto at =
            std::lower_bound(tails.begin(), tails.end(), siblings[i],
                             [&](std::size_t t, std::size_t old) { return siblings[t] < old; });
        before[i] = at == tails.begin() ? kNone : *(at - 1);
        if (at == tails.end()) {
            tails.push_back(i);
        } else {
            *at = i;
        }
    }
    std::vector<bool> stays(siblings.size(), false);
    for (std::size_t i = tails.empty() ? kNone : tails.back(); i != kNone; i = before[i]) {
        stays[i] = true;
    }
    for (std::size_t i = 0; i < siblings.size(); ++i) {
        if (!stays[i]) {
            moved[newAt[i]] = true;
        }
    }
}

}  // namespace

std::vector<COobDifference> DiffOob(const CTreeStore& before, const CTreeStore& after) {
    const std::vector<CPathLine> was = PathsOf(before);
    const std::vector<CPathLine> is = PathsOf(after);
    std::unordered_map<std::string_view, std::size_t> wasAt;
    wasAt.reserve(was.size());
    for (std::size_t i = 0; i < was.size(); ++i) {
        wasAt.emplace(was[i].path, i);
    }
    // Each kept entry's old position, and the kept children of each parent in their new order.
    std::vector<std::size_t> oldAt(is.size(), kNone);
    std::vector<std::vector<std::size_t>> keptChildren(is.size() + 1);
    std::vector<bool> kept(was.size(), false);
    for (std::size_t i = 0; i < is.size(); ++i) {
        if (const auto found = wasAt.find(is[i].path); found != wasAt.end()) {
            oldAt[i] = found->second;
            kept[found->second] = true;
            keptChildren[is[i].parent == kNone ? is.size() : is[i].parent].push_back(i);
        }
    }
    std::vector<bool> moved(is.size(), false);
    for (const std::vector<std::size_t>& children : keptChildren) {
        std::vector<std::size_t> old;
        old.reserve(children.size());
        for (std::size_t child : children) {
            old.push_back(oldAt[child]);
        }
        MarkMoved(old, children, moved);
    }

    std::vector<COobDifference> differences;
    for (std::size_t i = 0; i < was.size(); ++i) {
        if (!kept[i]) {
            differences.push_back({OobChange::kRemoved, was[i].path, was[i].line, {}});
        }
    }
    for (std::size_t i = 0; i < is.size(); ++i) {
        const CPathLine& entry = is[i];
        if (oldAt[i] == kNone) {
            differences.push_back({OobChange::kAdded, entry.path, {}, entry.line});
            continue;
        }
        if (moved[i]) {
            differences.push_back(
                {OobChange::kMoved,
                 entry.path,
                 {},
                 entry.previous == kNone ? std::string() : is[entry.previous].path});
        }
        if (was[oldAt[i]].line != entry.line) {
            differences.push_back(
                {OobChange::kChanged, entry.path, was[oldAt[i]].line, entry.line});
        }
    }
    return differences;
}
