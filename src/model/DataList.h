// The ordered record list of the game database, with a cursor. Searches run from the head and
// the first match wins.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/DataObject.h"

struct CDataListNode {
    explicit CDataListNode(std::unique_ptr<CDataObject> payload) : m_pPayload(std::move(payload)) {}

    int m_nIndex = 0;
    CDataListNode* m_pPrev = nullptr;
    CDataListNode* m_pNext = nullptr;
    std::unique_ptr<CDataObject> m_pPayload;
};

class CDataList {
public:
    // A list may keep an index by a text key of its records (a type's name, a weapon's name),
    // so that the first-match search by that key does not walk the list. The index is kept in
    // step by PushBack and PushFront; a record's key must not change while it is in the list.
    using KeyOf = std::string_view (*)(const CDataObject&);

    explicit CDataList(KeyOf keyOf = nullptr) : m_keyOf(keyOf) {}
    ~CDataList() { Clear(); }
    CDataList(const CDataList&) = delete;
    CDataList& operator=(const CDataList&) = delete;

    void Init();
    void PushBack(std::unique_ptr<CDataObject> payload);
    void PushFront(std::unique_ptr<CDataObject> payload);
    void Rewind() { m_pCursor = m_pHead; }
    CDataListNode* Current() const { return m_pCursor; }
    CDataListNode* Next();
    CDataListNode* Prev();
    CDataListNode* Move(int n);
    CDataListNode* SeekIndex(int n);
    CDataListNode* Head() const { return m_pHead; }
    CDataListNode* Tail() const { return m_pTail; }
    int Count() const { return m_nCount; }
    void Clear();
    // Counts the changes to the list's membership, so that what is derived from the list can
    // tell when to derive it again.
    std::uint64_t Revision() const { return m_nRevision; }

    // The payload under the cursor, or none.
    CDataObject* CurrentPayload() const {
        return m_pCursor ? m_pCursor->m_pPayload.get() : nullptr;
    }

    // The first record whose key equals key, leaving the cursor on it (none when there is no
    // such record). Only for a list made with a key.
    CDataObject* FindByKey(std::string_view key);

private:
    int m_nCount = 0;
    std::uint64_t m_nRevision = 0;
    CDataListNode* m_pHead = nullptr;
    CDataListNode* m_pTail = nullptr;
    CDataListNode* m_pCursor = nullptr;
    KeyOf m_keyOf;
    // The index: open addressing over a power-of-two table, at most half full, each slot the
    // key's hash, the key and the node (none: empty). Records are never taken out one by one, so
    // slots are only ever filled or overwritten.
    struct Slot {
        std::size_t hash = 0;
        std::string_view key;  // the record's own key, which does not change while indexed
        CDataListNode* node = nullptr;
    };
    // Keys are short names: FNV-1a hashes them in a few instructions a byte. Its low bits,
    // which pick the slot, depend only on the low bits of the bytes, so names that differ in a
    // digit crowd together: the high half is folded into them.
    static std::size_t Hash(std::string_view key) {
        std::uint64_t hash = 14695981039346656037ULL;
        for (unsigned char c : key) {
            hash = (hash ^ c) * 1099511628211ULL;
        }
        return static_cast<std::size_t>(hash ^ (hash >> 32));
    }
    // The slot holding key, or the empty slot where it would go. The table must not be empty.
    Slot& SlotOf(std::string_view key, std::size_t hash);
    // Indexes node under its key; replace says whether it takes the key from an earlier record.
    void Index(CDataListNode* node, bool replace);
    std::vector<Slot> m_slots;
    std::size_t m_nIndexed = 0;
};
