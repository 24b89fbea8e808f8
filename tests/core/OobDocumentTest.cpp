// The order-of-battle document: files, template blocks and the copy buffer written from the tree
// and read back into it, the skeleton of a new order of battle, and what the reader makes of
// damaged input.
#include "model/OobDocument.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SmallGameData.h"
#include "TempFolder.h"
#include "TestTrees.h"
#include "base/Result.h"
#include "gamedata/GameRecords.h"
#include "model/LeaderItem.h"

namespace {

// An army with a childless brigade and a brigade that is its last child, a depot, and a last
// top-level brigade whose blocks the file leaves open; its lines end in bare line feeds.
const std::string kGolden = ReadBytes(HW_TEST_DATA "/golden.oob");

const char* const kGoldenShape =
    "Army of Norland(Marshal Orm Empty Brigade Iron Brigade(Colonel Ash 1st Foot)) Depot "
    "Last Brigade(Major Fen Hussars Inner Brigade(Battery))";

const std::string kUnit = "U 1 1 Foot Musket 0 0 ";

std::string CrLf(const std::string& text) {
    std::string out;
    for (char c : text) {
        out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    return out;
}

class OobDocument : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(m_db.Load(HW_TEST_DATA "/small.inf"), RESULT_DONE);
        m_db.m_pPrompts = &m_prompts;
        m_doc.m_reader.m_onPassedOver = [this](int lineNumber, const std::string& line) {
            m_passedOver.push_back(std::to_string(lineNumber) + ":" + line);
        };
    }

    // Writes text to a file of the temporary folder and gives its path.
    std::string File(const std::string& name, const std::string& text) {
        WriteBytes(m_folder / name, text);
        return m_folder / name;
    }
    void Load(const std::string& text) {
        ASSERT_EQ(m_doc.LoadTree(File("in.oob", text), m_tree), RESULT_DONE);
    }
    HTREEITEM Find(const std::string& label) { return FindLabel(m_tree, label); }
    std::string Subtree(HTREEITEM start) {
        std::string out;
        m_doc.m_writer.WriteSubtree(out, m_tree, start);
        return out;
    }

    CTempFolder m_folder;
    CGameDatabase m_db;
    CRecordingPrompts m_prompts;
    COobDocument m_doc{&m_db};
    CTreeStore m_tree;
    // The lines the reader passed over, with their line numbers.
    std::vector<std::string> m_passedOver;
};

// The file ends inside two open blocks; the reader closes them at its end. Bare line feeds read,
// and carriage returns are written.
TEST_F(OobDocument, SaveAndLoadGiveTheSameTreeAndBytes) {
    Load(kGolden);
    EXPECT_EQ(Shape(m_tree), kGoldenShape);
    EXPECT_EQ(m_tree.GetSelectedItem(), m_tree.GetRootItem());
    const std::string saved = m_folder / "saved.oob";
    ASSERT_EQ(m_doc.Save(saved, m_tree), RESULT_DONE);
    EXPECT_EQ(m_doc.m_strPath, saved);
    EXPECT_EQ(ReadBytes(saved), CrLf(kGolden));
    CTreeStore again;
    ASSERT_EQ(m_doc.LoadTree(saved, again), RESULT_DONE);
    EXPECT_EQ(m_doc.m_writer.ToText(again), CrLf(kGolden));
    EXPECT_TRUE(m_passedOver.empty());
    EXPECT_TRUE(m_prompts.m_warnings.empty());
    EXPECT_EQ(m_doc.Save(m_folder / "missing/out.oob", m_tree), RESULT_CANNOT_WRITE);
    EXPECT_EQ(m_doc.m_strPath, saved);
}

class Templates : public OobDocument {
protected:
    void SetUp() override {
        OobDocument::SetUp();
        Load("3\nA P\n\tBegin\n\t" + kUnit + "W\n\t" + kUnit + "X\n\t" + kUnit + "Y\n");
        m_hParent = Find("P");
    }
    std::string Insert(const std::string& path, int ordinal, HTREEITEM after = TVI_LAST) {
        EXPECT_EQ(m_doc.m_reader.InsertTemplate(path, m_tree, m_hParent, after, ordinal),
                  RESULT_DONE);
        return Shape(m_tree);
    }

    HTREEITEM m_hParent = nullptr;
};

TEST_F(Templates, WrittenSubtreesCloseOnlyTheirOwnBlocks) {
    Load(kGolden);
    // The walk climbs two levels after "1st Foot"; only the brigade's own block is closed.
    EXPECT_EQ(Subtree(Find("Iron Brigade")),
              CrLf("B Iron Brigade\n\tBegin\n\tL 1 5 0 Colonel Ash\n\tU 10 3 Foot Musket 1 2 1st "
                   "Foot\n\tEnd\n"));
    EXPECT_EQ(Subtree(Find("Empty Brigade")), CrLf("B Empty Brigade\n\tBegin\n\tEnd\n"));
    EXPECT_EQ(Subtree(Find("Inner Brigade")),
              CrLf("B Inner Brigade\n\tBegin\n\tU 2 1 FieldGun Gun6 3 4 Battery\n"));
    // A written subtree, saved as a template, inserts as the same subtree.
    const std::string path = File("iron.tpl", Subtree(Find("Iron Brigade")) + "</T>\r\n");
    EXPECT_EQ(Insert(path, 0, TVI_FIRST),
              "P(Iron Brigade(Colonel Ash 1st Foot) W X Y) " + std::string(kGoldenShape));
    EXPECT_EQ(m_doc.m_strPath, m_folder / "in.oob");  // inserting names no file
}

// The copied lines are the file's without indentation; pasted, the first top-level item goes
// first and the others last, each with what it holds.
TEST_F(Templates, CopiedLinesPasteAsTheSameItemsFirstThenLast) {
    CTreeStore golden;
    ASSERT_EQ(m_doc.LoadTree(File("golden.oob", kGolden), golden), RESULT_DONE);
    CLineStore list;
    list.AddString("left over");
    m_doc.m_writer.CopyToList(golden, nullptr, list);
    std::string joined = "3\n";
    for (int i = 0; i < list.GetCount(); ++i) {
        joined += list.GetText(i) + "\n";
    }
    std::string untabbed = kGolden;
    std::erase(untabbed, '\t');
    EXPECT_EQ(joined, untabbed);
    m_doc.m_reader.PasteFromList(m_tree, m_hParent, TVI_FIRST, list);
    EXPECT_EQ(Shape(m_tree),
              "P(Army of Norland(Marshal Orm Empty Brigade Iron Brigade(Colonel Ash 1st Foot)) W X "
              "Y Depot Last Brigade(Major Fen Hussars Inner Brigade(Battery)))");
    m_doc.m_writer.CopyToList(golden, FindLabel(golden, "Iron Brigade"), list);
    EXPECT_EQ(list.GetCount(), 5);
}

TEST_F(OobDocument, DefaultOrderOfBattleReadsBackAsArmyLeaderAndDepot) {
    const std::string path = m_folder / "new.oob";
    ASSERT_EQ(m_doc.m_writer.CreateDefault(path), RESULT_DONE);
    EXPECT_EQ(ReadBytes(path),
              CrLf("3\nA Army\n\tBegin\n\tL 4 4 0 Army Leader\n\tEnd\nDEP 6 0 Depot\n"));
    ASSERT_EQ(m_doc.LoadTree(path, m_tree), RESULT_DONE);
    EXPECT_EQ(Shape(m_tree), "Army(Army Leader) Depot");
    EXPECT_NE(ItemOf(m_tree, Find("Army Leader"))->m_pType, nullptr);
    EXPECT_EQ(m_doc.m_writer.CreateDefault(m_folder / "missing/new.oob"), RESULT_CANNOT_WRITE);
}

TEST_F(OobDocument, LeadersAreNumberedInTreeOrder) {
    Load(kGolden);
    CLineStore list;
    list.AddString("L 1 2 0 Captain First");
    m_doc.m_reader.PasteFromList(m_tree, TVI_ROOT, TVI_FIRST, list);
    NumberLeaders(m_tree);
    std::string numbers;
    for (const char* name : {"Captain First", "Marshal Orm", "Colonel Ash", "Major Fen"}) {
        numbers +=
            std::to_string(static_cast<CLeaderItem*>(ItemOf(m_tree, Find(name)))->m_nLeaderNumber);
    }
    EXPECT_EQ(numbers, "0123");
}

// Nesting is counted past the parents table, so the "End" lines of blocks too deep to hold
// items still close them; the items inside are passed over.
TEST_F(OobDocument, BlocksDeeperThanTheParentsTableAreCountedButNotFilled) {
    std::string text = "3\n";
    for (int i = 1; i <= 12; ++i) {
        text += "B L" + std::to_string(i) + "\nBegin\n";
    }
    text += kUnit + "deep\nEnd\nEnd\nEnd\n" + kUnit + "still deep\nEnd\n" + kUnit + "nine\n";
    for (int i = 0; i < 20; ++i) {
        text += "End\n";
    }
    Load(text + kUnit + "top\n");
    EXPECT_EQ(Shape(m_tree), "L1(L2(L3(L4(L5(L6(L7(L8(L9 nine)))))))) top");
    EXPECT_EQ(m_passedOver,
              (std::vector<std::string>{"20:B L10", "22:B L11", "24:B L12", "26:" + kUnit + "deep",
                                        "30:" + kUnit + "still deep"}));
}

// The file reader takes its text a piece at a time: lines of every length around the cut, with
// and without a carriage return, falling across the pieces at every offset, read as the
// line-by-line template reader reads them.
TEST_F(OobDocument, LinesAcrossReadPiecesReadAsLineByLine) {
    std::string text = "3\n";
    for (int i = 0; text.size() < 300000; ++i) {
        const std::string name(static_cast<std::size_t>(i * 7 % 300),
                               static_cast<char>('a' + i % 26));
        text += kUnit + name + (i % 3 == 0 ? "\r\n" : "\n");
    }
    Load(text);
    const std::vector<std::string> passedOver = m_passedOver;
    m_passedOver.clear();
    CTreeStore inserted;
    ASSERT_EQ(m_doc.m_reader.InsertTemplate(File("all.tpl", text), inserted, TVI_ROOT, TVI_LAST, 0),
              RESULT_DONE);
    EXPECT_EQ(m_tree.GetCount(), inserted.GetCount());
    EXPECT_EQ(m_doc.m_writer.ToText(m_tree), m_doc.m_writer.ToText(inserted));
    EXPECT_EQ(passedOver, m_passedOver);
}

}  // namespace
