#include "model/DataList.h"

void CDataList::Init() {
    ++m_nRevision;
    m_nCount = 0;
    m_pHead = m_pTail = m_pCursor = nullptr;
    m_slots.clear();
    m_nIndexed = 0;
}

void CDataList::PushBack(std::unique_ptr<CDataObject> payload) {
    auto* node = new CDataListNode(std::move(payload));
    ++m_nRevision;
    node->m_nIndex = m_nCount;
    node->m_pPrev = m_pTail;
    if (m_pTail) {
        m_pTail->m_pNext = node;
    } else {
        m_pHead = node;
    }
    m_pTail = node;
    ++m_nCount;
    m_pCursor = node;
    if (m_keyOf) {
        Index(node, false);  // an earlier record keeps the key
    }
}

void CDataList::PushFront(std::unique_ptr<CDataObject> payload) {
    auto* node = new CDataListNode(std::move(payload));
    ++m_nRevision;
    node->m_pNext = m_pHead;
    if (m_pHead) {
        m_pHead->m_pPrev = node;
    } else {
        m_pTail = node;
    }
    m_pHead = node;
    ++m_nCount;
    int index = 0;
    for (CDataListNode* n = m_pHead; n; n = n->m_pNext) {
        n->m_nIndex = index++;
    }
    m_pCursor = node;
    if (m_keyOf) {
        Index(node, true);  // the new head is the first match now
    }
}

CDataListNode* CDataList::Next() {
    if (m_pCursor) {
        m_pCursor = m_pCursor->m_pNext;
    }
    return m_pCursor;
}

CDataListNode* CDataList::Prev() {
    if (m_pCursor) {
        m_pCursor = m_pCursor->m_pPrev;
    }
    return m_pCursor;
}

CDataListNode* CDataList::Move(int n) {
    for (; n > 0; --n) {
        Next();
    }
    for (; n < 0; ++n) {
        Prev();
    }
    return m_pCursor;
}

CDataListNode* CDataList::SeekIndex(int n) {
    Rewind();
    return Move(n);
}

void CDataList::Clear() {
    CDataListNode* node = m_pHead;
    while (node) {
        CDataListNode* next = node->m_pNext;
        delete node;
        node = next;
    }
    Init();
}

namespace {

// Keys are a few characters long: a loop decides sooner than a call.
bool SameKey(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i]) {
            return false;
        }
    }
    return true;
}

}  // namespace

CDataList::Slot& CDataList::SlotOf(std::string_view key, std::size_t hash) {
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        Slot& slot = m_slots[i];
        if (!slot.node || (slot.hash == hash && SameKey(slot.key, key))) {
            return slot;
        }
    }
}

void CDataList::Index(CDataListNode* node, bool replace) {
    if (2 * (m_nIndexed + 1) > m_slots.size()) {
        std::vector<Slot> old(m_slots.size() < 8 ? 16 : 2 * m_slots.size());
        old.swap(m_slots);
        for (const Slot& slot : old) {
            if (slot.node) {
                SlotOf(slot.key, slot.hash) = slot;
            }
        }
    }
    const std::string_view key = m_keyOf(*node->m_pPayload);
    const std::size_t hash = Hash(key);
    Slot& slot = SlotOf(key, hash);
    if (!slot.node) {
        ++m_nIndexed;
        slot = {hash, key, node};
    } else if (replace) {
        slot = {hash, key, node};
    }
}

CDataObject* CDataList::FindByKey(std::string_view key) {
    m_pCursor = m_slots.empty() ? nullptr : SlotOf(key, Hash(key)).node;
    return CurrentPayload();
}
