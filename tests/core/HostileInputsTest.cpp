// Every reader against the inputs no well-formed file holds: the cases are the files under
// tests/data/hostile/<reader>/, each an input and the exact outcome the reader must give
// (tests/data/hostile/README.md describes the format).
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "CaseFile.h"
#include "TempFolder.h"
#include "TestTrees.h"
#include "base/BmpReader.h"
#include "base/LineCut.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/GameImport.h"
#include "model/OobDocument.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"
#include "model/Workspace.h"

namespace {

const std::string kHostile = std::string(HW_TEST_DATA) + "/hostile";

// What a reader made of an input: the result compared whole, and the text written back from it,
// which must hold the case's written bytes.
struct COutcome {
    std::string result, written;
};

struct CReader {
    std::function<COutcome(const std::string& input, const CCase& c)> read;
    bool readsBack;  // what it writes reads back as the same outcome
};

// A document on the game data of tests/data/<data> and a tree read from the case's tree lines,
// or the given ones, and the input written as in.file.
struct CCaseTree {
    CCaseTree(const char* data, const CCase& c, const std::vector<std::string>& lines,
              const std::string& input) {
        EXPECT_EQ(db.Load(std::string(HW_TEST_DATA "/") + data), RESULT_DONE);
        std::string text = "3\n";
        for (const std::string& line : c.tree.empty() ? lines : c.tree) {
            text += line + "\n";
        }
        WriteBytes(folder / "tree.oob", text);
        WriteBytes(folder / "in.file", input);
        EXPECT_EQ(doc.LoadTree(folder / "tree.oob", tree), RESULT_DONE);
    }

    CTempFolder folder;
    CGameDatabase db;
    COobDocument doc{&db};
    CTreeStore tree;
};

COutcome ReadOob(const std::string& text, const CCase& c) {
    CCaseTree t("small.inf", c, {}, text);
    EXPECT_EQ(t.doc.LoadTree(t.folder / "in.file", t.tree), RESULT_DONE);
    return {Shape(t.tree), t.doc.m_writer.ToText(t.tree)};
}

// Inserts block N of the input under the first army (P holding one unit W, or the case's tree),
// last or, as the option "N first" or "N after LABEL" says, first or after the entry LABEL.
COutcome InsertTemplate(const std::string& text, const CCase& c) {
    CCaseTree t("small.inf", c, {"A P", "\tBegin", "\tU 1 1 Foot Musket 0 0 W"}, text);
    std::istringstream option(c.option);
    int block = 0;
    std::string where, label;
    option >> block >> where >> std::ws;
    std::getline(option, label);
    const HTREEITEM after = where == "first"   ? TVI_FIRST
                            : where == "after" ? FindLabel(t.tree, label)
                                               : TVI_LAST;
    EXPECT_EQ(t.doc.m_reader.InsertTemplate(t.folder / "in.file", t.tree, t.tree.GetRootItem(),
                                            after, block),
              RESULT_DONE);
    return {Shape(t.tree), t.doc.m_writer.ToText(t.tree)};
}

// Kinds, base types, types, weapons, attached orders of battle and templates read.
COutcome ReadTarget(const std::string& text, const CCase&) {
    CGameDatabase db;
    std::istringstream in(text);
    db.ReadFrom(in);
    int weapons = 0;
    for (CDataListNode* n = db.m_Types.Head(); n; n = n->m_pNext) {
        weapons += static_cast<CTypeRecord&>(*n->m_pPayload).m_Weapons.Count();
    }
    return {Format("k%d b%d t%d w%d o%d f%d", db.m_Kinds.Count(), db.m_BaseTypes.Count(),
                   db.m_Types.Count(), weapons, db.m_AttachedOobs.Count(), db.m_Templates.Count()),
            db.ToText()};
}

COutcome ReadWorkspace(const std::string& text, const CCase&) {
    CWorkspace w;
    std::istringstream in(text);
    w.ReadFrom(in);
    std::string fields = w.m_strTitle + "|" + w.m_strOobFile + "|" + w.m_strBackupFile + "|" +
                         w.m_strTargetFile + "|";
    for (int i = 0; i < CWorkspace::kPictures; ++i) {
        fields += std::to_string(w.m_nPictureFlags[i]) + ":" + w.m_strPicturePaths[i] + "|";
    }
    return {fields, ""};
}

// Imports the input as a game file into the case's tree or the one below, the option naming
// what happens to the entries it misses; the tree and the strength or supply of every unit and
// supply left.
COutcome Import(const std::string& text, const CCase& c) {
    const std::map<std::string, int> flags = {
        {"keep", 0},
        {"zero", IMPORT_ZERO_MISSING},
        {"remove", IMPORT_REMOVE_MISSING},
        {"remove empty", IMPORT_REMOVE_MISSING | IMPORT_REMOVE_EMPTY},
        {"empty only", IMPORT_REMOVE_EMPTY}};
    // 1 North: 1.1 Chief, 1.2 First (1.2.1 Line 8, 1.2.2 Guns 6, 1.2.3 Wagons 9);
    // 2 South: 2.1 Staff (2.1.1 Aide, 2.1.2 Foot 5).
    CCaseTree t(
        "report.inf", c,
        {"A North", "Begin", "L 4 3 0 Chief", "C First", "Begin", "U 8 2 Fus Musket 0 0 Line",
         "U 6 2 Gun Cannon 0 0 Guns", "S 9 0 Wagons", "End", "End", "A South", "Begin", "C Staff",
         "Begin", "L 4 3 0 Aide", "U 5 2 Fus Musket 0 0 Foot"},
        text);
    const CTreeStore& tree = t.tree;
    EXPECT_EQ(ImportGameData(t.folder / "in.file", t.tree, flags.at(c.option)), RESULT_DONE);
    std::string out = Shape(tree);
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        const COobItem* item = ItemOf(tree, walk.Current());
        if (item->m_nType == TYPE_UNIT || item->m_nType == TYPE_SUPPLY) {
            const int strength = item->m_nType == TYPE_UNIT
                                     ? static_cast<const CUnitItem*>(item)->m_nStrength
                                     : static_cast<const CSupplyItem*>(item)->m_nSupply;
            out += " " + std::string(item->m_strName) + "=" + std::to_string(strength);
        }
    }
    return {out, ""};
}

// What a writer leaves of over-long lines, the option naming the delimiter ("blank" or "|").
COutcome CutLines(const std::string& text, const CCase& c) {
    std::string cut = text;
    CutOverLongLines(cut, c.option == "blank" ? ' ' : c.option[0]);
    return {cut, ""};
}

// The picture's size and its pixels from the top row, runs of equal ones as n*word; or the
// error, which must name the file.
COutcome ReadBmp(const std::string& bytes, const CCase&) {
    CTempFolder folder;
    WriteBytes(folder / "in.bmp", bytes);
    const CImageReadResult read = ReadBmpFile(folder / "in.bmp");
    const CPixelImage& image = read.image;
    std::string out = read.Done() ? Format("%dx%d", image.width, image.height)
                                  : read.error.substr(folder.Path().size() + 1);
    for (std::size_t i = 0, n = 1; i < image.pixels.size(); i += n, n = 1) {
        while (i + n < image.pixels.size() && image.pixels[i + n] == image.pixels[i]) {
            ++n;
        }
        out += (n > 1 ? Format(" %zu*", n) : " ") + Format("%08x", image.pixels[i]);
    }
    return {out, ""};
}

const std::map<std::string, CReader> kReaders = {
    {"oob", {ReadOob, true}},       {"template", {InsertTemplate, false}},
    {"target", {ReadTarget, true}}, {"workspace", {ReadWorkspace, false}},
    {"import", {Import, false}},    {"line-cut", {CutLines, false}},
    {"bmp", {ReadBmp, false}},
};

void CheckRow(const CReader& reader, const CCase& c) {
    const COutcome got = reader.read(c.input, c);
    EXPECT_EQ(got.result, c.result);
    if (c.writtenWhole) {
        EXPECT_EQ(got.written, c.written);
    } else {
        EXPECT_NE(got.written.find(c.written), std::string::npos) << got.written.substr(0, 600);
    }
    if (reader.readsBack) {
        const COutcome again = reader.read(got.written, c);
        EXPECT_EQ(again.result, got.result);
        EXPECT_EQ(again.written, got.written);
    }
}

// The input cut after every byte gives the result of the whole lines before the cut; a cut
// inside a line gives that of the line ended there, or, for a reader that drops an unended
// line, that of the whole lines before it.
void CheckCuts(const CReader& reader, const CCase& c) {
    ASSERT_EQ(c.afterLines.size(),
              static_cast<std::size_t>(std::count(c.input.begin(), c.input.end(), '\n')) + 1);
    for (std::size_t n = 0; n <= c.input.size(); ++n) {
        SCOPED_TRACE(n);
        const std::string cut = c.input.substr(0, n);
        const COutcome got = reader.read(cut, c);
        if (n == 0 || cut.back() == '\n' || !c.partialLineRead) {
            EXPECT_EQ(got.result, c.afterLines[std::count(cut.begin(), cut.end(), '\n')]);
        } else {
            const COutcome ended = reader.read(cut + "\n", c);
            EXPECT_EQ(got.result, ended.result);
            EXPECT_EQ(got.written, ended.written);
        }
    }
}

TEST(HostileInputs, EveryCaseReadsAsDecided) {
    std::map<std::string, int> cases;
    for (const auto& folder : std::filesystem::directory_iterator(kHostile)) {
        if (!folder.is_directory()) {
            continue;
        }
        const std::string name = folder.path().filename().string();
        ASSERT_EQ(kReaders.count(name), 1u) << "no reader for " << folder.path();
        for (const auto& file : std::filesystem::directory_iterator(folder.path())) {
            if (file.path().extension() != ".case") {
                continue;
            }
            SCOPED_TRACE(file.path().string());
            const CCase c = ReadCase(file.path().string());
            if (c.afterLines.empty()) {
                CheckRow(kReaders.at(name), c);
            } else {
                CheckCuts(kReaders.at(name), c);
            }
            ++cases[name];
        }
    }
    EXPECT_EQ(cases.size(), kReaders.size());
}

// A path that names no file, or a folder, is refused and what was read before stays: a folder
// read as an empty game file would remove every unit.
TEST(HostileInputs, PathsThatAreNoFileAreRefused) {
    CTempFolder folder;
    COobDocument doc(nullptr);
    CTreeStore tree;
    tree.InsertItem("kept", TVI_ROOT, TVI_LAST);
    CWorkspace w;
    w.m_strTitle = "kept";
    for (const std::string& path : {folder / "missing", folder.Path()}) {
        SCOPED_TRACE(path);
        EXPECT_EQ(doc.LoadTree(path, tree), RESULT_CANNOT_OPEN);
        EXPECT_EQ(doc.m_reader.InsertTemplate(path, tree, TVI_ROOT, TVI_LAST, 0),
                  RESULT_CANNOT_OPEN);
        EXPECT_EQ(ImportGameData(path, tree, IMPORT_REMOVE_MISSING), RESULT_CANNOT_OPEN);
        EXPECT_EQ(w.Load(path), RESULT_CANNOT_OPEN);
        EXPECT_EQ(ReadBmpFile(path).error, path + ": cannot open the file");
    }
    EXPECT_EQ(Shape(tree), "kept");
    EXPECT_EQ(w.m_strTitle, "kept");
}

}  // namespace
