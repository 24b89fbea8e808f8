#include "model/DataList.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

// A record with a name that counts its destructions.
class CCountedRecord : public CDataObject {
public:
    CCountedRecord(std::string name, int* destroyed) : m_pDestroyed(destroyed) {
        m_strName = std::move(name);
    }
    ~CCountedRecord() override {
        if (m_pDestroyed) {
            ++*m_pDestroyed;
        }
    }

private:
    int* m_pDestroyed;
};

std::unique_ptr<CDataObject> Record(std::string name, int* destroyed = nullptr) {
    return std::make_unique<CCountedRecord>(std::move(name), destroyed);
}

const std::string& NameOf(const CDataObject& record) {
    return record.m_strName;
}

std::string NameAt(const CDataListNode* node) {
    return node ? node->m_pPayload->m_strName : "none";
}

// "A0 B1 C2" from head to tail, checking on the way that the links agree in both directions.
std::string Contents(const CDataList& list) {
    std::string out;
    const CDataListNode* previous = nullptr;
    for (const CDataListNode* n = list.Head(); n; previous = n, n = n->m_pNext) {
        EXPECT_EQ(n->m_pPrev, previous);
        out += (out.empty() ? "" : " ") + NameAt(n) + std::to_string(n->m_nIndex);
    }
    EXPECT_EQ(list.Tail(), previous);
    return out;
}

TEST(DataList, PushBackNumbersFromZeroAndMovesTheCursor) {
    CDataList list;
    for (const char* name : {"A", "B", "C"}) {
        list.PushBack(Record(name));
        EXPECT_EQ(NameAt(list.Current()), name);
    }
    EXPECT_EQ(Contents(list), "A0 B1 C2");
    EXPECT_EQ(list.Count(), 3);
}

TEST(DataList, PushFrontRenumbersAndPutsTheCursorOnTheHead) {
    CDataList list;
    list.PushFront(Record("A"));
    EXPECT_EQ(Contents(list), "A0");
    list.PushBack(Record("B"));
    list.PushBack(Record("C"));
    list.PushFront(Record("D"));
    EXPECT_EQ(Contents(list), "D0 A1 B2 C3");
    EXPECT_EQ(NameAt(list.Current()), "D");
    EXPECT_EQ(list.Count(), 4);
    list.PushBack(Record("E"));
    EXPECT_EQ(Contents(list), "D0 A1 B2 C3 E4");
}

TEST(DataList, CursorMovesAndFallsOffTheEnds) {
    CDataList list;
    EXPECT_EQ(list.Next(), nullptr);
    EXPECT_EQ(list.SeekIndex(0), nullptr);
    for (const char* name : {"A", "B", "C"}) {
        list.PushBack(Record(name));
    }
    list.Rewind();
    // Next and Prev in turn: at the tail the cursor falls off, and from none it stays none.
    const std::pair<bool, const char*> steps[] = {
        {true, "B"}, {true, "C"}, {true, "none"}, {true, "none"}, {false, "none"}};
    for (const auto& [forward, expected] : steps) {
        EXPECT_EQ(NameAt(forward ? list.Next() : list.Prev()), expected);
        EXPECT_EQ(NameAt(list.Current()), expected);
    }
    list.Rewind();
    const std::pair<int, const char*> moves[] = {{2, "C"}, {-1, "B"}, {0, "B"}, {-5, "none"}};
    for (const auto& [n, expected] : moves) {
        EXPECT_EQ(NameAt(list.Move(n)), expected) << n;
    }
    for (int i : {2, 0, 1}) {
        EXPECT_EQ(list.SeekIndex(i)->m_nIndex, i);
        EXPECT_EQ(list.Current()->m_nIndex, i);
    }
}

TEST(DataList, ClearAndDestructionDestroyEveryPayload) {
    int destroyed = 0;
    {
        CDataList list;
        for (const char* name : {"A", "B", "C"}) {
            list.PushBack(Record(name, &destroyed));
        }
        list.Clear();
        EXPECT_EQ(destroyed, 3);
        EXPECT_EQ(list.Count(), 0);
        EXPECT_EQ(list.Head(), nullptr);
        EXPECT_EQ(list.Tail(), nullptr);
        EXPECT_EQ(list.Current(), nullptr);
        list.PushBack(Record("D", &destroyed));
        list.PushFront(Record("E", &destroyed));
        EXPECT_EQ(Contents(list), "E0 D1");
    }
    EXPECT_EQ(destroyed, 5);
}

TEST(DataList, FindByKeyGivesTheFirstMatchFromTheHead) {
    CDataList list(NameOf);
    list.PushBack(Record("x"));
    list.PushBack(Record("x"));  // the earlier record keeps the key
    EXPECT_EQ(list.FindByKey("x"), list.Head()->m_pPayload.get());
    EXPECT_EQ(list.Current(), list.Head());
    list.PushFront(Record("x"));  // the new head is the first match now
    EXPECT_EQ(list.FindByKey("x"), list.Head()->m_pPayload.get());
    EXPECT_EQ(list.FindByKey("X"), nullptr);
    EXPECT_EQ(list.Current(), nullptr);
    list.Clear();
    EXPECT_EQ(list.FindByKey("x"), nullptr);
}

// Any mix of appends and inserts at the head: the keyed search agrees with a walk from the head.
TEST(DataList, FindByKeyAgreesWithAWalkFromTheHead) {
    std::mt19937 random(12345);
    CDataList list(NameOf);
    for (int i = 0; i < 200; ++i) {
        const std::string key(1, static_cast<char>('a' + random() % 6));
        if (random() % 2) {
            list.PushBack(Record(key));
        } else {
            list.PushFront(Record(key));
        }
        for (char k = 'a'; k <= 'g'; ++k) {
            const CDataObject* walked = nullptr;
            for (list.Rewind(); list.Current() && !walked; list.Next()) {
                if (list.CurrentPayload()->m_strName == std::string(1, k)) {
                    walked = list.CurrentPayload();
                }
            }
            ASSERT_EQ(list.FindByKey(std::string(1, k)), walked) << i << " " << k;
        }
    }
}

}  // namespace
