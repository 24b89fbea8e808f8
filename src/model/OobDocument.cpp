#include "model/OobDocument.h"

#include "base/FileWriter.h"

int COobDocument::LoadTree(const std::string& path, CTreeStore& tree) {
    m_strPath = path;
    return m_reader.LoadTree(path, tree);
}

CWriteResult COobDocument::Save(const std::string& path, const CTreeStore& tree) {
    return SaveAs(m_strPath, path, [&] { return m_writer.Save(path, tree); });
}
