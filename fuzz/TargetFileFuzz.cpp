// The target platform file reader on any file, and its writer: what the writer makes of the game
// data reads back and is written again byte for byte. Then the items of a small order of battle
// look up their records in what was read, and the reports price them.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "FuzzSupport.h"
#include "base/Result.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Reports.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    CGameDatabase first;
    first.ReadFrom(input);
    const std::string written = first.ToText();
    std::istringstream again(written);
    CGameDatabase second;
    second.ReadFrom(again);
    Require(second.ToText() == written, "written game data is written differently");

    // Game data this damaged need not give an order of battle that reads back the same (two
    // kinds whose keywords begin alike, say), so only reading, writing and pricing are checked.
    COobDocument document(&first);
    CTreeStore tree;
    Require(document.LoadTree(WriteScratchFile("frontier.oob", SampleText("frontier.oob")), tree) ==
                RESULT_DONE,
            "the sample order of battle does not open");
    RequireConsistentTree(tree);
    document.m_writer.ToText(tree);
    ReportText(tree, ReportKind::kHtml, HTML_COSTS | HTML_IMAGES);
    ReportText(tree, ReportKind::kCost);
    ReportText(tree, ReportKind::kLeader);
    first.ToText();
    return 0;
}
