#include "base/DataList.h"

void CDataList::Init() {
    ++m_nRevision;
    m_nCount = 0;
    m_pHead = m_pTail = m_pCursor = nullptr;
    m_slots.clear();
    m_nMask = 0;
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

std::unique_ptr<CDataObject> CDataList::PopBack() {
    if (!m_pTail || m_keyOf) {
        return nullptr;
    }
    CDataListNode* node = m_pTail;
    ++m_nRevision;
    m_pTail = node->m_pPrev;
    (m_pTail ? m_pTail->m_pNext : m_pHead) = nullptr;
    --m_nCount;
    if (m_pCursor == node) {
        m_pCursor = m_pTail;
    }
    std::unique_ptr<CDataObject> payload = std::move(node->m_pPayload);
    delete node;
    return payload;
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

bool CDataList::TailsEqual(std::string_view a, std::string_view b) {
    return a.substr(8) == b.substr(8);
}

void CDataList::Index(CDataListNode* node, bool replace) {
    if (2 * (m_nIndexed + 1) > m_slots.size()) {
        std::vector<Slot> old(m_slots.size() < 8 ? 16 : 2 * m_slots.size());
        old.swap(m_slots);
        m_nMask = m_slots.size() - 1;
        for (const Slot& slot : old) {
            if (slot.node) {
                SlotOf(slot.key, Digest(slot.key)) = slot;
            }
        }
    }
    const std::string_view key = m_keyOf(*node->m_pPayload);
    const Digest digest(key);
    Slot& slot = SlotOf(key, digest);
    if (!slot.node) {
        ++m_nIndexed;
        slot = {digest.hash, digest.head, key, node};
    } else if (replace) {
        slot = {digest.hash, digest.head, key, node};
    }
}
