#include "model/DataList.h"

void CDataList::Init() {
    m_nCount = 0;
    m_pHead = m_pTail = m_pCursor = nullptr;
    m_index.clear();
}

void CDataList::PushBack(std::unique_ptr<CDataObject> payload) {
    auto* node = new CDataListNode(std::move(payload));
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
        m_index.emplace(m_keyOf(*node->m_pPayload), node);  // an earlier record keeps the key
    }
}

void CDataList::PushFront(std::unique_ptr<CDataObject> payload) {
    auto* node = new CDataListNode(std::move(payload));
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
        m_index[m_keyOf(*node->m_pPayload)] = node;  // the new head is the first match now
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

CDataObject* CDataList::FindByKey(std::string_view key) {
    auto it = m_index.find(key);
    m_pCursor = it == m_index.end() ? nullptr : it->second;
    return CurrentPayload();
}
