#include "model/ItemLineReader.h"

#include "gamedata/GameRecords.h"

CItemLineReader::CItemLineReader(CLineTokenizer& tokenizer, const CKindRecord* kind)
    : m_tokenizer(tokenizer) {
    m_tokenizer.SetPosition(kind ? kind->m_strKeyword.size() : 0);
}
