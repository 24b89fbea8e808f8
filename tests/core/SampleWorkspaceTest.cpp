// The sample workspace that ships with the program: every file of it reads without a single
// question, every item finds the records its cost needs, and the orders of battle write back
// byte for byte (the workspace and target files are written back by the File and CLI tests).
#include <gtest/gtest.h>

#include <string>

#include "SmallGameData.h"
#include "TempFolder.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"

namespace {

const std::string kSample = HW_SAMPLE_DIR "/";

class SampleWorkspace : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(m_database.Load(kSample + "valdoria.inf"), RESULT_DONE);
        m_database.m_pPrompts = &m_prompts;
    }
    // The sample names only records its game data holds, so any question is a fault.
    void TearDown() override {
        EXPECT_EQ(m_prompts.m_warnings.size() + m_prompts.m_questions.size(), 0u);
    }

    CRecordingPrompts m_prompts;
    CGameDatabase m_database;
    COobDocument m_document{&m_database};
};

// The campaign and the attached order of battle: every entry with all its records, nothing added
// to the game data, and the tree written back as the file stands (so every line made an entry).
TEST_F(SampleWorkspace, OrdersOfBattleReadCompletelyAndWriteBack) {
    const auto* attached =
        static_cast<const CAttachedOobRecord*>(m_database.m_AttachedOobs.Head()->m_pPayload.get());
    const int types = m_database.m_Types.Count();
    for (const std::string& name : {std::string("valdoria.oob"), attached->m_strFile}) {
        SCOPED_TRACE(name);
        const std::string bytes = ReadBytes(kSample + name);
        CTreeStore tree;
        ASSERT_EQ(m_document.LoadTree(kSample + name, tree), RESULT_DONE);
        int counts[TYPE_GUNBOAT + 1] = {};
        for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
            const COobItem* item = ItemOf(tree, walk.Current());
            ASSERT_NE(item, nullptr);
            ++counts[item->m_nType];
            const bool armed = item->m_nType == TYPE_UNIT || item->m_nType == TYPE_GUNBOAT;
            EXPECT_TRUE(item->m_pKind && item->m_pType && item->m_pBaseType) << item->m_strName;
            EXPECT_EQ(item->m_pWeapon != nullptr, armed) << item->m_strName;
            EXPECT_GT(item->Cost(), 0.0) << item->m_strName;
        }
        EXPECT_TRUE(counts[TYPE_ARMY] == 2 && counts[TYPE_LEADER] > 0 && counts[TYPE_UNIT] > 0);
        EXPECT_EQ(m_document.m_writer.ToText(tree), bytes);
    }
    EXPECT_EQ(m_database.m_Types.Count(), types);
}

// Each template block is what its record says: kind, level and cost; ordinal 1 inserts the
// second block alone.
TEST_F(SampleWorkspace, TemplatesMatchTheirRecords) {
    const std::string path = kSample + m_database.m_strTemplateFile;
    for (CDataListNode* n = m_database.m_Templates.Head(); n; n = n->m_pNext) {
        const auto& record = static_cast<const CTemplateRecord&>(*n->m_pPayload);
        SCOPED_TRACE(record.m_strName);
        CTreeStore tree;
        ASSERT_EQ(
            m_document.m_reader.InsertTemplate(path, tree, TVI_ROOT, TVI_LAST, record.m_nOrdinal),
            RESULT_DONE);
        HTREEITEM top = tree.GetRootItem();
        ASSERT_NE(top, nullptr);
        EXPECT_EQ(tree.GetNextSiblingItem(top), nullptr);
        const COobItem* item = ItemOf(tree, top);
        EXPECT_EQ(item->m_pKind->TypeCode(), record.TypeCode());
        EXPECT_EQ(item->m_pKind->m_nLevel, record.m_nLevel);
        EXPECT_EQ(FormatNumber(item->Aggregate(tree, top, CATEGORY_ALL, MEASURE_COST)),
                  FormatNumber(record.m_dCost));
        if (record.m_nOrdinal == 1) {
            EXPECT_EQ(tree.GetCount(), 1u);
        }
    }
}

}  // namespace
