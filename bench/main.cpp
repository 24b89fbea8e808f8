// make bench: the cost of the core's work against a raw baseline measured in the same run, at
// three sizes, so that the ratios say how much the program adds and whether it stays linear.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "BenchData.h"
#include "BenchTimer.h"
#include "HistoryBench.h"
#include "RecoveryBench.h"
#include "base/Result.h"
#include "gamedata/GameDatabase.h"
#include "model/GameImport.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Reports.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRuns = 3;

std::size_t RawScan(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    std::size_t lines = 0;
    while (std::getline(in, line)) {
        ++lines;
    }
    return lines;
}

// The same bytes written as durably as the program writes them: written whole, flushed to disk,
// closed.
void RawWrite(const std::string& path, const std::string& bytes) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n <= 0) {
            break;
        }
        done += static_cast<std::size_t>(n);
    }
    ::fsync(fd);
    ::close(fd);
}

struct Figures {
    std::size_t entries = 0;
    double scan = 0, load = 0, rawWrite = 0, save = 0;
    double bytesPerEntry = 0;
    double html = 0, cost = 0, leader = 0, key = 0, import = 0;
};

Figures Measure(const fs::path& folder, CGameDatabase& database, std::size_t size) {
    Figures f;
    const std::string oobPath = (folder / ("bench" + std::to_string(size) + ".oob")).string();
    const std::string bytes = MakeBenchOob(size);
    WriteBytes(oobPath, bytes);

    COobDocument document(&database);
    f.scan = BestSeconds(kRuns, [&] { RawScan(oobPath); });
    std::unique_ptr<CTreeStore> tree;
    f.load = BestSeconds(
        kRuns, [&] { document.LoadTree(oobPath, *tree); },
        [&] { tree = std::make_unique<CTreeStore>(); });
    tree.reset();
    const std::size_t before = HeapInUse();
    tree = std::make_unique<CTreeStore>();
    document.LoadTree(oobPath, *tree);
    f.entries = tree->GetCount();
    f.bytesPerEntry = static_cast<double>(HeapInUse() - before) / static_cast<double>(f.entries);

    const std::string outPath = (folder / "out.oob").string();
    f.rawWrite = BestSeconds(kRuns, [&] { RawWrite(outPath, bytes); });
    f.save = BestSeconds(kRuns, [&] { document.Save(outPath, *tree); });

    const std::string reportPath = (folder / "report.txt").string();
    CWriteBuffer& buffer = document.m_writer.Buffer();
    const auto report = [&](ReportKind kind, int flags = 0) {
        return BestSeconds(kRuns, [&] { WriteReport(buffer, reportPath, *tree, kind, flags); });
    };
    f.html = report(ReportKind::kHtml, HTML_COSTS | HTML_IMAGES);
    f.cost = report(ReportKind::kCost);
    f.leader = report(ReportKind::kLeader);
    f.key = report(ReportKind::kKey);

    const std::string gamePath = (folder / "game.btl").string();
    WriteBytes(gamePath, MakeBenchGameFile(*tree));
    f.import = BestSeconds(kRuns, [&] {
        ImportGameData(gamePath, *tree, IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY);
    });
    return f;
}

void Report(const char* what, double ratio, double limit) {
    std::printf("  %-44s %6.2f (target <= %.2f) %s\n", what, ratio, limit,
                ratio <= limit ? "met" : "MISSED");
}

}  // namespace

int main() {
    const fs::path folder =
        fs::temp_directory_path() / ("harnwick-bench-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    const std::string targetPath = (folder / "bench.inf").string();
    WriteBytes(targetPath, MakeBenchTarget());
    CGameDatabase database;
    database.Load(targetPath);

    std::vector<Figures> all;
    std::printf("%10s %10s %10s %8s %10s %10s %8s %10s\n", "entries", "scan ns/e", "load ns/e",
                "load/sc", "write ns/e", "save ns/e", "save/wr", "bytes/e");
    for (std::size_t size : {10000u, 100000u, 1000000u}) {
        const Figures f = Measure(folder, database, size);
        all.push_back(f);
        std::printf("%10zu %10.1f %10.1f %8.2f %10.1f %10.1f %8.2f %10.1f\n", f.entries,
                    PerEntry(f.scan, f.entries), PerEntry(f.load, f.entries), f.load / f.scan,
                    PerEntry(f.rawWrite, f.entries), PerEntry(f.save, f.entries),
                    f.save / f.rawWrite, f.bytesPerEntry);
        std::fflush(stdout);
    }
    std::printf("\n%10s %10s %10s %10s %10s %10s   (ns per entry; ratios to save, load)\n",
                "entries", "html", "cost", "leader", "key", "import");
    for (const Figures& f : all) {
        std::printf("%10zu %10.1f %10.1f %10.1f %10.1f %10.1f\n", f.entries,
                    PerEntry(f.html, f.entries), PerEntry(f.cost, f.entries),
                    PerEntry(f.leader, f.entries), PerEntry(f.key, f.entries),
                    PerEntry(f.import, f.entries));
        std::printf("%10s %10.2f %10.2f %10.2f %10.2f %10.2f\n", "", f.html / f.save,
                    f.cost / f.save, f.leader / f.save, f.key / f.save, f.import / f.load);
    }
    const Figures& small = all.front();
    const Figures& large = all.back();
    std::printf("\nTargets at %zu entries:\n", large.entries);
    Report("LoadTree / raw line scan", large.load / large.scan, 4.0);
    Report("Save / raw write", large.save / large.rawWrite, 3.0);
    Report("memory bytes per entry / 100", large.bytesPerEntry / 100.0, 3.0);
    Report("load ns per entry, 10^6 / 10^4",
           PerEntry(large.load, large.entries) / PerEntry(small.load, small.entries), 1.5);
    Report("HTML report / Save", large.html / large.save, 3.0);
    Report("cost report / Save", large.cost / large.save, 3.0);
    Report("leader report / Save", large.leader / large.save, 3.0);
    Report("key report / Save", large.key / large.save, 3.0);
    Report("import / LoadTree", large.import / large.load, 3.0);
    Report("save ns per entry, 10^6 / 10^4",
           PerEntry(large.save, large.entries) / PerEntry(small.save, small.entries), 1.5);
    MeasureHistory(folder.string(), targetPath);
    MeasureTreeCommands(folder.string(), targetPath);
    MeasureRecovery(folder.string(), targetPath);
    fs::remove_all(folder);
    return 0;
}
