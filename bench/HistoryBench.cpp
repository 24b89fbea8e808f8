#include "HistoryBench.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "BenchData.h"
#include "BenchTimer.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/ReaderPrompts.h"
#include "model/OobDocument.h"
#include "model/Session.h"
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

// An order of battle whose first army holds a generated one of entries entries, and a second
// generated one of as many beside it.
std::string NestedOob(std::size_t entries) {
    const std::string inner = MakeBenchOob(entries);
    std::string out = inner.substr(0, inner.find('\n') + 1) + "A Grand Army\r\n\tBegin\r\n";
    for (std::size_t at = inner.find('\n') + 1; at < inner.size();) {
        const std::size_t end = inner.find('\n', at) + 1;
        out += '\t' + inner.substr(at, end - at);
        at = end;
    }
    return out + "\tEnd\r\n" + inner.substr(inner.find('\n') + 1);
}

}  // namespace

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
