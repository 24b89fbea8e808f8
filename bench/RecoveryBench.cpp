#include "RecoveryBench.h"

#include <cstdio>
#include <memory>

#include "BenchData.h"
#include "BenchTimer.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/RecoveryFolder.h"

namespace {
constexpr int kRuns = 3;
constexpr std::size_t kEntries = 100000;
}  // namespace

// The copy is made as the editor makes it when its timer fires: the tree's text, then the
// copy and its header written.
void MeasureRecovery(const std::string& folder, const std::string& targetPath) {
    CGameDatabase database;
    database.Load(targetPath);
    const std::string oobPath = folder + "/recovery-source.oob";
    WriteBytes(oobPath, MakeBenchOob(kEntries));
    COobDocument document(&database);
    CTreeStore tree;
    document.LoadTree(oobPath, tree);
    const std::size_t entries = tree.GetCount();

    const std::string savePath = folder + "/recovery-saved.oob";
    const double save = BestSeconds(kRuns, [&] { document.Save(savePath, tree); });
    const CRecoveryFolder recovery(folder + "/state");
    const double copy = BestSeconds(kRuns, [&] {
        recovery.Write(folder + "/bench.txt", oobPath, document.m_writer.ToText(tree));
    });
    std::printf("\n%10s %10s %10s %10s %10s\n", "entries", "save ns/e", "copy ns/e", "copy ms",
                "copy/save");
    std::printf("%10zu %10.1f %10.1f %10.2f %10.2f\n", entries, PerEntry(save, entries),
                PerEntry(copy, entries), copy * 1000.0, copy / save);
    const double ratio = copy / save;
    std::printf("  %-44s %6.2f (target <= %.2f) %s\n", "recovery copy / Save", ratio, 1.5,
                ratio <= 1.5 ? "met" : "MISSED");
}
