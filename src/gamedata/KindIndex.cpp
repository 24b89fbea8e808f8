#include "gamedata/KindIndex.h"

void CKindIndex::Rebuild(const CDataList& kinds) {
    for (auto& group : m_groups) {
        group.clear();
    }
    m_pFirst = kinds.Head() ? static_cast<CKindRecord*>(kinds.Head()->m_pPayload.get()) : nullptr;
    for (CDataListNode* n = kinds.Head(); n; n = n->m_pNext) {
        auto* kind = static_cast<CKindRecord*>(n->m_pPayload.get());
        if (kind->m_strKeyword.empty()) {
            // A kind without a keyword claims every line, whatever its first byte.
            for (auto& group : m_groups) {
                group.push_back(kind);
            }
        } else {
            m_groups[static_cast<unsigned char>(kind->m_strKeyword.front())].push_back(kind);
        }
    }
    m_nRevision = kinds.Revision();
}
