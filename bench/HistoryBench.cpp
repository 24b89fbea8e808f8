#include "HistoryBench.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "BenchData.h"
#include "BenchTimer.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/ReaderPrompts.h"
#include "model/OobDocument.h"
#include "model/Session.h"
#include "model/TreeCommands.h"
#include "model/Workspace.h"

namespace {

class CQuietPrompts : public CReaderPrompts {
public:
    void Warning(const std::string&) override {}
    int AskUnitClass(const std::string&) override { return 1; }
};

double Seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// An order of battle whose first entry (an army unless top says otherwise) holds a generated one
// of entries entries, and a second generated one of as many beside it.
std::string NestedOob(std::size_t entries, const std::string& top = "A Grand Army") {
    const std::string inner = MakeBenchOob(entries);
    std::string out = inner.substr(0, inner.find('\n') + 1) + top + "\r\n\tBegin\r\n";
    for (std::size_t at = inner.find('\n') + 1; at < inner.size();) {
        const std::size_t end = inner.find('\n', at) + 1;
        out += '\t' + inner.substr(at, end - at);
        at = end;
    }
    return out + "\tEnd\r\n" + inner.substr(inner.find('\n') + 1);
}

// A session on NestedOob(entries, top).
void OpenNested(CSession& session, const std::string& folder, const std::string& targetPath,
                std::size_t entries, const std::string& top) {
    const std::string oobPath = folder + "/nested.oob";
    WriteBytes(oobPath, NestedOob(entries, top));
    auto workspace = std::make_unique<CWorkspace>();
    workspace->m_strOobFile = oobPath;
    session.Open(std::move(workspace), session.LoadDatabase(targetPath));
}

// LoadTree of a generated order of battle of entries entries, best of three.
double LoadSeconds(const std::string& folder, const CSession& session, std::size_t entries) {
    const std::string path = folder + "/plain.oob";
    WriteBytes(path, MakeBenchOob(entries));
    std::unique_ptr<CTreeStore> tree;
    return BestSeconds(
        3, [&] { session.Document()->LoadTree(path, *tree); },
        [&] { tree = std::make_unique<CTreeStore>(); });
}

std::size_t SubtreeSize(const CTreeStore& tree, HTREEITEM top) {
    std::size_t size = 0;
    for (CTreeWalk walk(tree, top); !walk.Done(); walk.Step()) {
        ++size;
    }
    return size;
}

void PrintCommand(const char* what, std::size_t size, double command, double undo, double load) {
    std::printf("%-34s %8zu %12.0f %12.0f %12.0f %8.3f %8.4f\n", what, size, command * 1e9,
                undo * 1e9, load * 1e9, command / load, undo / command);
}

}  // namespace

void MeasureTreeCommands(const std::string& folder, const std::string& targetPath) {
    CQuietPrompts prompts;
    CSession session(prompts);
    std::printf("\n%-34s %8s %12s %12s %12s %8s %8s\n", "tree command", "subtree", "command ns",
                "undo ns", "LoadTree ns", "cmd/load", "undo/cmd");

    // A corps of 10^4 entries copied, pasted as the first child of the army beside it.
    OpenNested(session, folder, targetPath, 10000, "C Grand Corps");
    const HTREEITEM corps = session.Tree().GetRootItem();
    const HTREEITEM army = session.Tree().GetNextSiblingItem(corps);
    MarkEntry(session, corps, ClipMode::Copy);
    double paste = 1e9, pasteUndo = 1e9;
    for (int run = 0; run < 3; ++run) {
        paste = std::min(paste, Seconds([&] { PasteChild(session, army); }));
        pasteUndo = std::min(pasteUndo, Seconds([&] { session.Edit().Undo(); }));
        // The undone copy is freed here, not by the next paste's step dropping it: each paste
        // then meets the allocator as LoadTree does, with the last tree's memory free.
        session.Edit().Reset();
    }
    const std::size_t pasted = SubtreeSize(session.Tree(), corps);
    const double pasteLoad = LoadSeconds(folder, session, pasted);
    PrintCommand("Paste child", pasted, paste, pasteUndo, pasteLoad);

    // An army of 10^5 entries deleted.
    OpenNested(session, folder, targetPath, 100000, "A Grand Army");
    const HTREEITEM big = session.Tree().GetRootItem();
    const std::size_t deleted = SubtreeSize(session.Tree(), big);
    double remove = 1e9, removeUndo = 1e9;
    for (int run = 0; run < 3; ++run) {
        remove = std::min(remove, Seconds([&] { DeleteEntry(session, big); }));
        removeUndo = std::min(removeUndo, Seconds([&] { session.Edit().Undo(); }));
    }
    const double removeLoad = LoadSeconds(folder, session, deleted);
    PrintCommand("Delete this item", deleted, remove, removeUndo, removeLoad);

    for (const auto& [what, ratio, limit] :
         {std::tuple("Paste child of 10^4 / LoadTree of 10^4", paste / pasteLoad, 2.0),
          std::tuple("its undo / the paste", pasteUndo / paste, 1.0),
          std::tuple("Delete this item of 10^5 / LoadTree of 10^5", remove / removeLoad, 2.0),
          std::tuple("its undo / the delete", removeUndo / remove, 1.0)}) {
        std::printf("  %-44s %6.4f (target <= %.2f) %s\n", what, ratio, limit,
                    ratio <= limit ? "met" : "MISSED");
    }
}

void MeasureHistory(const std::string& folder, const std::string& targetPath) {
    CQuietPrompts prompts;
    CSession session(prompts);
    const std::string oobPath = folder + "/history.oob";
    WriteBytes(oobPath, NestedOob(100000));
    auto workspace = std::make_unique<CWorkspace>();
    workspace->m_strOobFile = oobPath;
    session.Open(std::move(workspace), session.LoadDatabase(targetPath));

    const HTREEITEM big = session.Tree().GetRootItem();
    std::size_t size = 0;
    for (CTreeWalk walk(session.Tree(), big); !walk.Done(); walk.Step()) {
        ++size;
    }
    double remove = 1e9, undo = 1e9;
    for (int run = 0; run < 3; ++run) {
        remove = std::min(remove, Seconds([&] { session.Edit().Remove(big); }));
        undo = std::min(undo, Seconds([&] { session.Edit().Undo(); }));
    }
    std::printf("\n%10s %12s %12s %10s   (a subtree out of %zu entries)\n", "subtree", "remove ns",
                "undo ns", "undo/rm", session.Tree().GetCount());
    std::printf("%10zu %12.0f %12.0f %10.4f\n", size, remove * 1e9, undo * 1e9, undo / remove);

    // 100 steps that each keep a whole tree of 10^5 entries (an import or a restore each), and
    // 100 that each keep one item (a rename or an accepted editor).
    WriteBytes(oobPath, MakeBenchOob(100000));
    workspace = std::make_unique<CWorkspace>();
    workspace->m_strOobFile = oobPath;
    session.Open(std::move(workspace), session.LoadDatabase(targetPath));
    std::size_t before = HeapInUse();
    for (std::size_t i = 0; i < CEditLayer::kMaxSteps; ++i) {
        session.Edit().ReplaceTree(
            [&](CTreeStore& tree) { return session.Document()->LoadTree(oobPath, tree); });
    }
    const double wholeTrees = static_cast<double>(HeapInUse() - before);
    session.Edit().Reset();
    before = HeapInUse();
    for (std::size_t i = 0; i < CEditLayer::kMaxSteps; ++i) {
        session.Edit().Rename(session.Tree().GetRootItem(), "Renamed " + std::to_string(i));
    }
    const double renames = static_cast<double>(HeapInUse() - before);
    std::printf(
        "\nhistory of 100 steps on %zu entries: whole-tree steps %.0f MB (%.1f bytes an "
        "entry a step); renames %.0f bytes a step\n",
        session.Tree().GetCount(), wholeTrees / 1e6,
        wholeTrees / 100.0 / static_cast<double>(session.Tree().GetCount()), renames / 100.0);
    std::printf("  %-44s %6.4f (target <= 1.00) %s\n", "undo of a 10^5 removal / the removal",
                undo / remove, undo <= remove ? "met" : "MISSED");
}
