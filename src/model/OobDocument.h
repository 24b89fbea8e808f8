// The open order-of-battle file: its path, and the reader and writer that keep their tokenizer
// and buffer from one call to the next.
#pragma once

#include <string>

#include "base/Result.h"
#include "base/TreeStore.h"
#include "model/OobReader.h"
#include "model/OobWriter.h"

class CGameDatabase;

class COobDocument {
public:
    explicit COobDocument(CGameDatabase* database) : m_reader(database), m_writer(database) {}

    // Makes path the document's file and fills the tree from it; RESULT_DONE, or
    // RESULT_CANNOT_OPEN with the tree unchanged.
    int LoadTree(const std::string& path, CTreeStore& tree);
    // Writes the tree to the file at path, which then becomes the document's file; a write that
    // fails leaves the old file and the document's path as they were.
    CWriteResult Save(const std::string& path, const CTreeStore& tree);

    // The game data the document reads its lines against.
    CGameDatabase* Database() const { return m_reader.m_pDatabase; }

    std::string m_strPath;
    COobReader m_reader;
    COobWriter m_writer;
};
