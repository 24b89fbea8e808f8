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
