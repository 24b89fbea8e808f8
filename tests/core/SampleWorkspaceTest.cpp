// The sample workspace that ships with the program: every file of it reads without a single
// question, every item finds the records its cost needs, and the orders of battle write back
// byte for byte (the workspace and target files are written back by the File and CLI tests).
#include <gtest/gtest.h>

#include <string>

#include "SmallGameData.h"
#include "TempFolder.h"
#include "base/BmpReader.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobDocument.h"
#include "model/OobItem.h"
#include "model/Workspace.h"

namespace {

const std::string kSample = HW_SAMPLE_DIR "/";

// The tree written back as the file stands shows every line made an entry. Each template block
// is what its record says; ordinal 1 inserts the second block alone.
TEST(SampleWorkspace, EveryFileReadsCompletelyWithoutAQuestion) {
    CGameDatabase database;
    ASSERT_EQ(database.Load(kSample + "valdoria.inf"), RESULT_DONE);
    CRecordingPrompts prompts;
    database.m_pPrompts = &prompts;
    COobDocument document(&database);
    const auto* attached =
        static_cast<const CAttachedOobRecord*>(database.m_AttachedOobs.Head()->m_pPayload.get());
    const int types = database.m_Types.Count();
    for (const std::string& name : {std::string("valdoria.oob"), attached->m_strFile}) {
        SCOPED_TRACE(name);
        CTreeStore tree;
        ASSERT_EQ(document.LoadTree(kSample + name, tree), RESULT_DONE);
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
        EXPECT_EQ(document.m_writer.ToText(tree), ReadBytes(kSample + name));
    }
    const std::string path = kSample + database.m_strTemplateFile;
    for (CDataListNode* n = database.m_Templates.Head(); n; n = n->m_pNext) {
        const auto& record = static_cast<const CTemplateRecord&>(*n->m_pPayload);
        SCOPED_TRACE(record.m_strName);
        CTreeStore tree;
        ASSERT_EQ(
            document.m_reader.InsertTemplate(path, tree, TVI_ROOT, TVI_LAST, record.m_nOrdinal),
            RESULT_DONE);
        const HTREEITEM top = tree.GetRootItem();
        ASSERT_NE(top, nullptr);
        EXPECT_EQ(tree.GetNextSiblingItem(top), nullptr);
        const COobItem* item = ItemOf(tree, top);
        EXPECT_EQ(item->m_pKind->TypeCode(), record.TypeCode());
        // The level is the kind's place among the kinds the template chooser filters by.
        int place = 0;
        for (CDataListNode* k = database.m_Kinds.Head(); k && k->m_pPayload.get() != item->m_pKind;
             k = k->m_pNext) {
            place += static_cast<const CKindRecord&>(*k->m_pPayload).TypeCode() < 7;
        }
        EXPECT_EQ(record.m_nLevel, place);
        EXPECT_EQ(FormatNumber(item->Aggregate(tree, top, CATEGORY_ALL, MEASURE_COST)),
                  FormatNumber(record.m_dCost));
        EXPECT_TRUE(record.m_nOrdinal != 1 || tree.GetCount() == 1u);
    }
    EXPECT_EQ(database.m_Types.Count(), types);
    EXPECT_EQ(prompts.m_warnings.size() + prompts.m_questions.size(), 0u);
}

// The five strips the workspace names read and hold whole cells of the game data's size for
// each, more of them than an icon strip reserves.
TEST(SampleWorkspace, PictureStripsHoldWholeCells) {
    CGameDatabase database;
    ASSERT_EQ(database.Load(kSample + "valdoria.inf"), RESULT_DONE);
    CWorkspace workspace;
    ASSERT_EQ(workspace.Load(kSample + "harnwick.txt"), RESULT_DONE);
    for (int i = 0; i < 5; ++i) {
        const CImageReadResult strip = ReadBmpFile(kSample + workspace.m_strPicturePaths[i]);
        ASSERT_TRUE(strip.Done()) << strip.error;
        const int width = database.m_nCellSizes[2 * i], height = database.m_nCellSizes[2 * i + 1];
        EXPECT_EQ(strip.image.width % width + strip.image.height % height, 0) << i;
        const int reserved = i < 2 ? 0 : database.IconOffset(i - 1) + database.IconTrailing(i - 1);
        EXPECT_GT(strip.image.width / width * (strip.image.height / height), reserved) << i;
    }
}

}  // namespace
