// Turns the order-of-battle tree into text: .oob files, the copy buffer and the skeleton of a
// new order of battle. The tree is the caller's and is handed to the writer on every call.
#pragma once

#include <string>

#include "base/LineStore.h"
#include "base/Result.h"
#include "base/TreeStore.h"
#include "base/WriteBuffer.h"

class CGameDatabase;

class COobWriter {
public:
    explicit COobWriter(CGameDatabase* database);

    // Writes the header number and the whole tree to the file at path.
    CWriteResult Save(const std::string& path, const CTreeStore& tree);
    // The bytes Save writes.
    std::string ToText(const CTreeStore& tree) const;
    // Appends the lines of the subtree of start (the whole tree when start is none).
    void WriteSubtree(std::string& out, const CTreeStore& tree, HTREEITEM start) const;
    // The copy buffer: the lines of the subtree of start, without indentation.
    void CopyToList(const CTreeStore& tree, HTREEITEM start, CLineStore& list) const;
    // Writes the skeleton of a new order of battle: each army of the game data with a leader,
    // and each depot.
    CWriteResult CreateDefault(const std::string& path) const;

    // The buffer of the last file written, for the reports written after a save.
    CWriteBuffer& Buffer() { return m_written; }

    CGameDatabase* m_pDatabase;

private:
    // Appends the header number and the whole tree's lines.
    void AppendText(std::string& out, const CTreeStore& tree) const;

    CWriteBuffer m_written;
};
