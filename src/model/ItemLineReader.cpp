#include "model/ItemLineReader.h"

#include "gamedata/GameRecords.h"
#include "model/OobItem.h"

CItemLineReader::CItemLineReader(COobItem& item, const std::string& line) {
    m_tokenizer.SetDelimiter(' ');
    m_tokenizer.SetLine(line);
    item.m_pKind = item.FindKindForLine(line);
    m_tokenizer.SetPosition(item.m_pKind ? item.m_pKind->m_strKeyword.size() : 0);
}

std::string CItemLineReader::Word() {
    std::string word = m_tokenizer.ReadString();
    ++m_tokenizer.Position();
    return word;
}
