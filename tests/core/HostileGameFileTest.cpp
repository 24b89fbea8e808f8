// The game-file import against files the game never writes: each row gives the tree and the
// strengths left after the import.
#include <gtest/gtest.h>

#include <string>

#include "HostileInputs.h"
#include "ReportTree.h"
#include "TempFolder.h"
#include "base/Result.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {

using namespace hostile;

const std::string kHeader = "1 9.9 0 0 9\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n";
// Line (1.2.1) gets 5, Foot (2.1.2) 3; the list names Aide (2.1.1).
const std::string kRecords =
    "1 1.2.1. 0 0 5\r\n1 2.1.2 0 0 3\r\n2 0 0 0 0 0 0 0 0 0 1\r\n2.1.1.\r\n";
const std::string kSmall = kHeader + kRecords;

class HostileGameFile : public CReportTree {
protected:
    void SetUp() override {
        CReportTree::SetUp();
        // 1 North: 1.1 Chief, 1.2 First (1.2.1 Line 8, 1.2.2 Guns 6, 1.2.3 Wagons 9);
        // 2 South: 2.1 Staff (2.1.1 Aide, 2.1.2 Foot 5).
        Build({"A North", "Begin", "L 4 3 0 Chief", "C First", "Begin", "U 8 2 Fus Musket 0 0 Line",
               "U 6 2 Gun Cannon 0 0 Guns", "S 9 0 Wagons", "End", "End", "A South", "Begin",
               "C Staff", "Begin", "L 4 3 0 Aide", "U 5 2 Fus Musket 0 0 Foot"});
    }

    // The tree after importing text, and the strength or supply of every entry left that has
    // one: "North(First(Line)) ... Line=5".
    std::string Import(const std::string& text, int flags) {
        m_tree.DeleteAllItems();
        SetUp();
        WriteBytes(m_folder / "game.btl", text);
        EXPECT_EQ(ImportGameData(m_folder / "game.btl", m_tree, flags), RESULT_DONE);
        std::string out = Shape();
        for (CTreeWalk walk(m_tree, nullptr); !walk.Done(); walk.Step()) {
            const COobItem* item = ItemOf(m_tree, walk.Current());
            if (item->m_nType == TYPE_UNIT || item->m_nType == TYPE_SUPPLY) {
                const int strength = item->m_nType == TYPE_UNIT
                                         ? static_cast<const CUnitItem*>(item)->m_nStrength
                                         : static_cast<const CSupplyItem*>(item)->m_nSupply;
                out += " " + std::string(item->m_strName) + "=" + std::to_string(strength);
            }
        }
        return out;
    }

    CTempFolder m_folder;
};

const std::string kWhole =
    "North(Chief First(Line Guns Wagons)) South(Staff(Aide Foot)) Line=8 Guns=6 Wagons=9 Foot=5";
// The small file under "Set strength to 0" and under "Remove".
const std::string kSmallZeroed =
    "North(Chief First(Line Guns Wagons)) South(Staff(Aide Foot)) Line=5 Guns=0 Wagons=0 Foot=3";
const std::string kSmallRemoved = "North(First(Line)) South(Staff(Aide Foot)) Line=5 Foot=3";
// A file that names nothing: every unit and supply is missing.
const std::string kNoneZeroed =
    "North(Chief First(Line Guns Wagons)) South(Staff(Aide Foot)) Line=0 Guns=0 Wagons=0 Foot=0";
const std::string kNoneRemoved = "North(First) South(Staff)";

// The small file with Line's record replaced by line.
std::string LineRecord(const std::string& line) {
    return ReplaceFirst(kSmall, "1 1.2.1. 0 0 5", line);
}
std::string WithLine(int strength) {
    return ReplaceFirst(kSmallZeroed, "Line=5", "Line=" + std::to_string(strength));
}

struct Row {
    const char* what;
    std::string input;
    int flags;
    std::string expected;
};

TEST_F(HostileGameFile, EveryRowImportsAsDecided) {
    const int zero = IMPORT_ZERO_MISSING;
    const int remove = IMPORT_REMOVE_MISSING;
    const std::string x(kMiB, 'x');
    const Row rows[] = {
        {"the small file, no choice", kSmall, 0,
         "North(Chief First(Line Guns Wagons)) South(Staff(Aide Foot)) Line=5 Guns=6 Wagons=9 "
         "Foot=3"},
        {"the small file, zero", kSmall, zero, kSmallZeroed},
        {"the small file, remove", kSmall, remove, kSmallRemoved},
        {"the small file, remove empty structures too", kSmall, remove | IMPORT_REMOVE_EMPTY,
         kSmallRemoved},
        {"empty, zero", "", zero, kNoneZeroed},
        {"empty, remove", "", remove, kNoneRemoved},
        {"empty, no choice", "", 0, kWhole},
        {"noise, no line feed", Noise(4096, "\n"), remove, kNoneRemoved},
        // Noise lines without a digit: the first record line is record 0, which ends them.
        {"noise lines", kHeader + Noise(64 * 1024, "0123456789"), zero, kNoneZeroed},
        {"noise after the records", kSmall + "0\r\n" + Noise(64 * 1024), zero, kSmallZeroed},
        {"1 MiB header line", x + "\n" + kSmall.substr(kSmall.find('\n') + 1), zero, kSmallZeroed},
        // Ten numbers of a key are read: 1.1.1... names below Chief, which has no children.
        {"1 MiB key",
         ReplaceFirst(kSmall, kRecords, "1 " + Repeat("1.", kMiB / 2) + "\r\n" + kRecords), zero,
         kSmallZeroed},
        {"1 MiB of line feeds", std::string(kMiB, '\n'), zero, kNoneZeroed},
        {"CR only", Replace(kSmall, "\r\n", "\r"), zero, kNoneZeroed},
        {"LF only", Replace(kSmall, "\r\n", "\n"), zero, kSmallZeroed},
        {"mixed LF and CR LF", MixedLineEnds(kSmall), remove, kSmallRemoved},
        // A second CR is a character numbers and keys pass over.
        {"CR CR LF", Replace(kSmall, "\r\n", "\r\r\n"), remove, kSmallRemoved},
        {"NUL in a key", LineRecord(std::string("1 1.2\0.1. 0 0 5", 15)), zero, kSmallZeroed},
        {"NUL bytes only", std::string(1000, '\0') + "\n", zero, kNoneZeroed},
        {"undefined bytes in a key", LineRecord("1 1.2.1" + kUndefined1252 + ". 0 0 5"), zero,
         kSmallZeroed},
        {"undefined bytes as the record", LineRecord(kUndefined1252 + " 1.2.1. 0 0 5"), zero,
         kNoneZeroed},
        // Numbers: truncated toward zero into the field's low bits; no exponent is read, and
        // letters are passed over.
        {"20-digit strength", LineRecord("1 1.2.1. 0 0 99999999999999999999"), zero,
         WithLine(16384)},
        {"strength -2147483649", LineRecord("1 1.2.1. 0 0 -2147483649"), zero, WithLine(-1)},
        {"strength 1e999", LineRecord("1 1.2.1. 0 0 1e999"), zero, WithLine(1999)},
        {"strength -0", LineRecord("1 1.2.1. 0 0 -0"), zero, WithLine(0)},
        {"strength 0x10", LineRecord("1 1.2.1. 0 0 0x10"), zero, WithLine(10)},
        {"20-digit record number", LineRecord("99999999999999999999 1.2.1. 0 0 5"), zero,
         kNoneZeroed},
        {"20-digit key number", LineRecord("1 99999999999999999999.1 0 0 5"), zero, WithLine(0)},
        // A negative number moves nowhere, like 0.
        {"negative key number", LineRecord("1 -1.2.1. 0 0 5"), zero, kSmallZeroed},
        {"strength missing", LineRecord("1 1.2.1."), remove,
         "North(First(Line)) South(Staff(Aide Foot)) Line=0 Foot=3"},
        {"10^5 fields on a record line", LineRecord("1 1.2.1. 0 0 5" + Repeat(" 9", 100000)), zero,
         kSmallZeroed},
        {"10^5 Begin lines", kHeader + Repeat("Begin\r\n", 100000) + kRecords, zero, kNoneZeroed},
        {"more End than Begin lines", kHeader + "Begin\r\n" + Repeat("End\r\n", 50), zero,
         kNoneZeroed},
        // A list reads as many lines as it counts, or to the end of the file.
        {"list counting 30000 lines", ReplaceFirst(kSmall, "0 0 0 1\r\n", "0 0 0 30000\r\n"),
         remove, kSmallRemoved},
        // The count is a 16-bit field: 100000 keeps -31072, and no line is read.
        {"list counting 10^5 lines", ReplaceFirst(kSmall, "0 0 0 1\r\n", "0 0 0 100000\r\n"),
         remove, "North(First(Line)) South(Staff(Foot)) Line=5 Foot=3"},
        {"list counting 20 digits",
         ReplaceFirst(kSmall, "0 0 0 1\r\n", "0 0 0 99999999999999999999\r\n"), remove,
         kSmallRemoved},
        // A negative count reads no line: the key after it is a record of its own, number 2.
        {"list counting -5", ReplaceFirst(kSmall, "0 0 0 1\r\n", "0 0 0 -5\r\n"), remove,
         "North(First(Line)) South(Staff(Foot)) Line=5 Foot=3"},
        {"list without its count", ReplaceFirst(kSmall, "2 0 0 0 0 0 0 0 0 0 1", "2"), remove,
         "North(First(Line)) South(Staff(Foot)) Line=5 Foot=3"},
        {"header cut short", "1\r\n2\r\n3\r\n", remove, kNoneRemoved},
        {"record naming a structure", LineRecord("1 1.2. 0 0 5"), zero, WithLine(0)},
        {"record naming a leader", LineRecord("1 1.1. 0 0 5"), remove,
         "North(Chief First) South(Staff(Aide Foot)) Foot=3"},
        {"key beyond the tree", LineRecord("1 3. 0 0 5"), zero, WithLine(0)},
        {"blank line ends the records", ReplaceFirst(kSmall, "1 2.1.2", "\r\n1 2.1.2"), remove,
         "North(First(Line)) South(Staff) Line=5"},
        {"tabs and blanks between fields", LineRecord("1\t1.2.1.  0\t 0 5"), zero, kSmallZeroed},
        {"record twice", kSmall + "1 1.2.1. 0 0 7\r\n", zero, WithLine(12)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Import(row.input, row.flags), row.expected);
    }
}

// The small file cut after every byte, under "Remove". A cut after a line break imports the
// whole lines before it, listed line by line; a cut inside a line imports that line as the
// file's last, as if its line feed followed.
TEST_F(HostileGameFile, FileCutAtEveryByte) {
    const std::string beforeRecords = kNoneRemoved;
    const std::string lineOnly = "North(First(Line)) South(Staff) Line=5";
    const std::string lineAndFoot = "North(First(Line)) South(Staff(Foot)) Line=5 Foot=3";
    const std::string afterLines[] = {
        beforeRecords, beforeRecords, beforeRecords, beforeRecords, beforeRecords,
        beforeRecords, beforeRecords, beforeRecords, beforeRecords, beforeRecords,
        lineOnly,      lineAndFoot,   lineAndFoot,   kSmallRemoved,
    };
    for (std::size_t n = 0; n <= kSmall.size(); ++n) {
        SCOPED_TRACE(n);
        const std::string cut = kSmall.substr(0, n);
        if (n == 0 || kSmall[n - 1] == '\n') {
            EXPECT_EQ(Import(cut, IMPORT_REMOVE_MISSING), afterLines[LinesBefore(kSmall, n)]);
        } else {
            EXPECT_EQ(Import(cut, IMPORT_REMOVE_MISSING),
                      Import(cut + "\n", IMPORT_REMOVE_MISSING));
        }
    }
}

// A path that names no file, or a folder, is refused and the tree is left as it was: a folder
// read as an empty game file would remove every unit.
TEST_F(HostileGameFile, PathsThatAreNoFileAreRefused) {
    EXPECT_EQ(ImportGameData(m_folder / "missing.btl", m_tree, IMPORT_REMOVE_MISSING),
              RESULT_CANNOT_OPEN);
    EXPECT_EQ(ImportGameData(m_folder.Path(), m_tree, IMPORT_REMOVE_MISSING), RESULT_CANNOT_OPEN);
    EXPECT_EQ(Shape(), "North(Chief First(Line Guns Wagons)) South(Staff(Aide Foot))");
}

}  // namespace
