#include "base/DataList.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

std::unique_ptr<CDataObject> Record(std::string name) {
    auto record = std::make_unique<CDataObject>();
    record->m_strName = std::move(name);
    return record;
}

std::string_view NameOf(const CDataObject& record) {
    return record.m_strName;
}

std::string NameAt(const CDataListNode* node) {
    return node ? std::string(node->m_pPayload->m_strName) : "none";
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

TEST(DataList, PushesRenumberAndTheCursorFallsOffTheEnds) {
    CDataList list;
    EXPECT_EQ(list.Next(), nullptr);
    list.PushFront(Record("A"));
    list.PushBack(Record("B"));
    EXPECT_EQ(NameAt(list.Current()), "B");
    list.PushFront(Record("D"));
    EXPECT_EQ(NameAt(list.Current()), "D");
    list.PushBack(Record("E"));
    EXPECT_EQ(Contents(list), "D0 A1 B2 E3");
    list.Rewind();
    // Next and Prev in turn: at the tail the cursor falls off, and from none it stays none.
    const std::pair<bool, const char*> steps[] = {
        {true, "A"}, {true, "B"}, {true, "E"}, {true, "none"}, {false, "none"}};
    for (const auto& [forward, expected] : steps) {
        EXPECT_EQ(NameAt(forward ? list.Next() : list.Prev()), expected);
    }
    list.Rewind();
    const std::pair<int, const char*> moves[] = {{2, "B"}, {-1, "A"}, {0, "A"}, {-5, "none"}};
    for (const auto& [n, expected] : moves) {
        EXPECT_EQ(NameAt(list.Move(n)), expected) << n;
    }
    EXPECT_EQ(NameAt(list.SeekIndex(3)), "E");
    EXPECT_EQ(list.SeekIndex(4), nullptr);
    list.Clear();
    EXPECT_EQ(list.Current(), nullptr);
    list.PushBack(Record("F"));
    EXPECT_EQ(Contents(list), "F0");
}

// Any mix of appends and inserts at the head: the keyed search gives the first match from the
// head, as a walk does.
// Keys of every length up to twelve over two letters: keys that differ in one byte only, at any
// place, or only in length (a short key is read in overlapping pieces) must stay apart.
TEST(DataList, FindByKeyAgreesWithAWalkFromTheHead) {
    std::mt19937 random(12345);
    const auto randomKey = [&random] {
        std::string key(random() % 13, 'a');
        for (char& c : key) {
            c = static_cast<char>('a' + random() % 2);
        }
        return key;
    };
    CDataList list(NameOf);
    for (int i = 0; i < 300; ++i) {
        if (random() % 2) {
            list.PushBack(Record(randomKey()));
        } else {
            list.PushFront(Record(randomKey()));
        }
        for (int probe = 0; probe < 20; ++probe) {
            const std::string key = randomKey();
            const CDataObject* walked = nullptr;
            for (list.Rewind(); list.Current() && !walked; list.Next()) {
                if (NameOf(*list.CurrentPayload()) == key) {
                    walked = list.CurrentPayload();
                }
            }
            ASSERT_EQ(list.FindByKey(key), walked) << i << " [" << key << "]";
        }
    }
    list.Clear();
    EXPECT_EQ(list.FindByKey("a"), nullptr);
}

}  // namespace
