#include "gamedata/BaseTypeIndex.h"

void CBaseTypeIndex::Rebuild(const CDataList& baseTypes) {
    m_first.fill(nullptr);
    // From the tail, so that an earlier record of a class overwrites a later one.
    for (CDataListNode* n = baseTypes.Tail(); n; n = n->m_pPrev) {
        auto* base = static_cast<CBaseTypeRecord*>(n->m_pPayload.get());
        m_first[base->ClassCode()] = base;
    }
    m_nRevision = baseTypes.Revision();
}
