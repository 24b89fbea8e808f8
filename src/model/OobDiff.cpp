#include "model/OobDiff.h"

#include <string_view>
#include <unordered_map>

#include "base/TreeWalk.h"
#include "model/OobItem.h"

namespace {

struct CPathLine {
    std::string path;
    std::string line;
};

void AppendEscaped(std::string& path, std::string_view name) {
    for (char c : name) {
        if (c == '/' || c == '#' || c == '\\') {
            path += '\\';
        }
        path += c;
    }
}

// Every entry of tree in pre-order, with its path and its item's line.
std::vector<CPathLine> PathsOf(const CTreeStore& tree) {
    std::vector<CPathLine> entries;
    entries.reserve(tree.GetCount());
    std::vector<std::size_t> parents;  // the entry of each level above the current one
    std::unordered_map<std::string, int> taken;
    taken.reserve(tree.GetCount());
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        parents.resize(static_cast<std::size_t>(walk.Depth()));
        std::string path = parents.empty() ? std::string() : entries[parents.back()].path + '/';
        AppendEscaped(path, tree.GetItemText(walk.Current()));
        if (const int occurrence = ++taken[path]; occurrence > 1) {
            path += '#' + std::to_string(occurrence);
        }
        std::string line;
        if (const COobItem* item = ItemOf(tree, walk.Current())) {
            item->ToText(line);
        }
        parents.push_back(entries.size());
        entries.push_back({std::move(path), std::move(line)});
    }
    return entries;
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
    std::vector<bool> kept(was.size(), false);
    std::vector<COobDifference> addedOrChanged;
    for (const CPathLine& entry : is) {
        const auto found = wasAt.find(entry.path);
        if (found == wasAt.end()) {
            addedOrChanged.push_back({OobChange::kAdded, entry.path, {}, entry.line});
            continue;
        }
        kept[found->second] = true;
        if (was[found->second].line != entry.line) {
            addedOrChanged.push_back(
                {OobChange::kChanged, entry.path, was[found->second].line, entry.line});
        }
    }
    std::vector<COobDifference> differences;
    for (std::size_t i = 0; i < was.size(); ++i) {
        if (!kept[i]) {
            differences.push_back({OobChange::kRemoved, was[i].path, was[i].line, {}});
        }
    }
    differences.insert(differences.end(), std::make_move_iterator(addedOrChanged.begin()),
                       std::make_move_iterator(addedOrChanged.end()));
    return differences;
}
