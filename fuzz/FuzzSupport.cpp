#include "FuzzSupport.h"

#include <stdlib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <system_error>
#include <vector>

#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "model/OobItem.h"

namespace {

// One folder per process, so that fuzzers running side by side never share a file. It is
// removed at exit; a crashed run leaves its small folder behind.
class CScratchFolder {
public:
    CScratchFolder() {
        std::error_code error;
        std::filesystem::path base = "/dev/shm";
        if (!std::filesystem::is_directory(base, error)) {
            base = std::filesystem::temp_directory_path();
        }
        std::string pattern = (base / "harnwick-fuzz-XXXXXX").string();
        Require(mkdtemp(pattern.data()) != nullptr, "cannot create the scratch folder");
        m_path = pattern;
    }
    ~CScratchFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

void CheckSubtree(const CTreeStore& tree, HTREEITEM entry, std::size_t& count) {
    for (std::size_t row = 0; row < entry->ChildCount(); ++row) {
        const HTREEITEM child = entry->Child(row);
        Require(child->Parent() == entry, "a child does not name its parent");
        Require(child->Row() == row, "a child does not know its row");
        Require(ItemOf(tree, child) != nullptr, "an entry holds no item");
        ++count;
        CheckSubtree(tree, child, count);
    }
}

void AppendOutline(const CTreeStore& tree, HTREEITEM entry, int depth, std::string& out) {
    for (std::size_t row = 0; row < entry->ChildCount(); ++row) {
        const HTREEITEM child = entry->Child(row);
        const COobItem* item = ItemOf(tree, child);
        out += std::to_string(depth) + ' ' + std::to_string(item->m_nType) + ' ';
        item->ToText(out);
        out += '|';
        out += tree.GetItemText(child);
        out += '\n';
        AppendOutline(tree, child, depth + 1, out);
    }
}

bool ChildrenOutsideContainers(const CTreeStore& tree, HTREEITEM entry) {
    for (std::size_t row = 0; row < entry->ChildCount(); ++row) {
        const HTREEITEM child = entry->Child(row);
        if (child->ChildCount() > 0 && !IsContainer(*ItemOf(tree, child))) {
            return true;
        }
        if (ChildrenOutsideContainers(tree, child)) {
            return true;
        }
    }
    return false;
}

// The line where two texts part, for the report of a failed check.
void ShowFirstDifference(std::string_view first, std::string_view second) {
    std::size_t at = 0;
    while (at < first.size() && at < second.size() && first[at] == second[at]) {
        ++at;
    }
    const std::size_t line = first.rfind('\n', at == 0 ? 0 : at - 1);
    const std::size_t start = line == std::string_view::npos || at == 0 ? 0 : line + 1;
    const auto show = [start](std::string_view text) {
        const std::string_view rest = text.substr(start < text.size() ? start : text.size());
        return std::string(rest.substr(0, rest.find('\n')));
    };
    std::fprintf(stderr, "first:  [%s]\nsecond: [%s]\n", show(first).c_str(), show(second).c_str());
}

}  // namespace

void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "fuzz check failed: %s\n", what);
        std::abort();
    }
}

std::string WriteScratchFile(const char* name, std::string_view bytes) {
    static const CScratchFolder folder;
    const std::string path = (folder.Path() / name).string();
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    Require(out.good(), "cannot write the scratch file");
    return path;
}

const std::string& SampleText(const char* name) {
    static std::map<std::string, std::string> texts;
    auto [it, added] = texts.try_emplace(name);
    if (added) {
        std::ifstream in(std::string(HW_SAMPLE_DIR "/") + name, std::ios::binary);
        Require(in.good(), "a sample file is missing");
        std::ostringstream bytes;
        bytes << in.rdbuf();
        it->second = std::move(bytes).str();
    }
    return it->second;
}

namespace {

// The number of types and of their weapons: reading adds records, and never removes or changes
// one, so a copy with the counts of the file is as the file left it.
std::size_t RecordCount(const CGameDatabase& database) {
    std::size_t count = 0;
    for (const CDataListNode* n = database.m_Types.Head(); n; n = n->m_pNext) {
        count += 1 + static_cast<const CTypeRecord&>(*n->m_pPayload).m_Weapons.Count();
    }
    return count;
}

// Copies as read from the file, for the next sessions; a run holds at most three at once.
std::vector<std::unique_ptr<CGameDatabase>>& SpareDatabases() {
    static std::vector<std::unique_ptr<CGameDatabase>> spares;
    return spares;
}

std::unique_ptr<CGameDatabase> ReadSampleDatabase() {
    auto database = std::make_unique<CGameDatabase>();
    std::istringstream in(SampleText("valdoria.inf"));
    database->ReadFrom(in);
    return database;
}

std::size_t SampleRecordCount() {
    static const std::size_t count = RecordCount(*ReadSampleDatabase());
    return count;
}

std::unique_ptr<CGameDatabase> TakeSampleDatabase() {
    auto& spares = SpareDatabases();
    if (spares.empty()) {
        return ReadSampleDatabase();
    }
    std::unique_ptr<CGameDatabase> database = std::move(spares.back());
    spares.pop_back();
    return database;
}

}  // namespace

COobSession::COobSession() : database(TakeSampleDatabase()), document(database.get()) {}

COobSession::~COobSession() {
    // The items point into the game data: they go first.
    tree.DeleteAllItems();
    if (RecordCount(*database) == SampleRecordCount()) {
        SpareDatabases().push_back(std::move(database));
    }
}

void RequireConsistentTree(const CTreeStore& tree) {
    std::size_t count = 0;
    CheckSubtree(tree, tree.HiddenRoot(), count);
    Require(count == tree.GetCount(), "the entry count is wrong");
    const HTREEITEM caret = tree.GetSelectedItem();
    Require(!caret || tree.IsInSubtree(caret, tree.HiddenRoot()), "the caret is not in the tree");
}

std::string TreeOutline(const CTreeStore& tree) {
    std::string out;
    AppendOutline(tree, tree.HiddenRoot(), 0, out);
    return out;
}

bool HasChildrenOutsideContainers(const CTreeStore& tree) {
    return ChildrenOutsideContainers(tree, tree.HiddenRoot());
}

bool HasCutLine(const CTreeStore& tree) {
    std::string line;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        line.assign(static_cast<std::size_t>(walk.Depth()), '\t');
        ItemOf(tree, walk.Current())->ToText(line);
        if (line.size() > kMaxLineLength) {
            return true;
        }
    }
    return false;
}

std::unique_ptr<COobSession> RequireOobFixedPoint(const std::string& text, bool cut) {
    auto again = std::make_unique<COobSession>();
    Require(
        again->document.LoadTree(WriteScratchFile("written.oob", text), again->tree) == RESULT_DONE,
        "the written file does not open");
    RequireConsistentTree(again->tree);
    const std::string second = again->document.m_writer.ToText(again->tree);
    if (cut && second != text) {
        return RequireOobFixedPoint(second, false);
    }
    if (second != text) {
        ShowFirstDifference(text, second);
    }
    Require(second == text, "a written order of battle, read and written again, changes");
    return again;
}
