#include "model/Session.h"

#include <utility>

#include "base/FileWriter.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "gamedata/GameDatabase.h"
#include "model/OobDocument.h"
#include "model/Workspace.h"

CSession::CSession(CReaderPrompts& prompts) : m_prompts(prompts) {}

CSession::~CSession() = default;

std::unique_ptr<CGameDatabase> CSession::LoadDatabase(const std::string& targetFile,
                                                      int* result) const {
    auto database = std::make_unique<CGameDatabase>();
    database->m_pPrompts = &m_prompts;
    const int loaded = database->Load(targetFile);
    if (result) {
        *result = loaded;
    }
    return database;
}

CWriteResult CSession::WriteSkeleton(CGameDatabase& database, const std::string& path) {
    return COobWriter(&database).CreateDefault(path);
}

// The history and the tree go first: their items point into the old database.
void CSession::Close() {
    m_edit.Reset();
    m_tree.DeleteAllItems();
    m_mark = CClipMark{};
    m_pWorkspace.reset();
    m_pDocument.reset();
    m_pDatabase.reset();
}

int CSession::Open(std::unique_ptr<CWorkspace> workspace, std::unique_ptr<CGameDatabase> database) {
    Close();
    m_pDatabase = std::move(database);
    m_pDocument = std::make_unique<COobDocument>(m_pDatabase.get());
    m_pDocument->m_reader.m_onPassedOver = m_onPassedOver;
    m_pWorkspace = std::move(workspace);
    const int result = m_pDocument->LoadTree(m_pWorkspace->m_strOobFile, m_tree);
    m_edit.Reset();
    return result;
}

CWriteResult CSession::Save() {
    if (!IsOpen()) {
        return {};
    }
    CWriteResult written = m_pDocument->Save(m_pDocument->m_strPath, m_tree);
    if (written.Done()) {
        written = m_pWorkspace->Save(m_pWorkspace->m_strPath);
    }
    if (written.Done()) {
        m_edit.MarkSaved();
    }
    return written;
}

CWriteResult CSession::SaveOobAs(const std::string& path) {
    CWriteResult written = m_pDocument->Save(path, m_tree);
    if (written.Done()) {
        m_edit.MarkSaved();
    }
    return written;
}

bool CSession::HasBackupFile() const {
    return IsOpen() && !m_pWorkspace->m_strBackupFile.empty() &&
           m_pWorkspace->m_strBackupFile != "empty";
}

CWriteResult CSession::SaveBackup() {
    if (!HasBackupFile()) {
        return {RESULT_CANNOT_WRITE, m_pWorkspace ? m_pWorkspace->m_strBackupFile : ""};
    }
    CWriteResult written = m_pDocument->m_writer.Save(m_pWorkspace->m_strBackupFile, m_tree);
    if (written.Done()) {
        m_edit.MarkBackedUp();
    }
    return written;
}

// The backup is read whole before the order-of-battle file is replaced, so that a backup that
// does not open or a write that fails leaves the file and the tree as they were.
CWriteResult CSession::RestoreBackup() {
    if (!HasBackupFile()) {
        return {RESULT_CANNOT_OPEN, m_pWorkspace ? m_pWorkspace->m_strBackupFile : ""};
    }
    std::string text;
    if (!ReadWholeFile(m_pWorkspace->m_strBackupFile, text)) {
        return {RESULT_CANNOT_OPEN, m_pWorkspace->m_strBackupFile};
    }
    const std::string& oobFile = m_pWorkspace->m_strOobFile;
    CWriteResult written = ReplaceFile(oobFile, text);
    if (!written.Done()) {
        return written;
    }
    if (m_edit.ReplaceTree([&](CTreeStore& tree) {
            return m_pDocument->LoadTree(oobFile, tree);
        }) != RESULT_DONE) {
        return {RESULT_CANNOT_OPEN, oobFile};
    }
    m_edit.MarkSaved();
    m_edit.MarkBackedUp();
    return written;
}

const char* CSession::OobStatus() const {
    return !IsOpen() ? "-" : m_edit.OobClean() ? " " : "*";
}

const char* CSession::BackupStatus() const {
    return !IsOpen() ? "-" : m_edit.BackupClean() ? " " : "*";
}

void CSession::Mark(HTREEITEM entry, ClipMode mode) {
    if (!IsOpen() || entry == nullptr || mode == ClipMode::None) {
        return;
    }
    auto lines = std::make_shared<CLineStore>();
    m_pDocument->m_writer.CopyToList(m_tree, entry, *lines);
    m_mark = CClipMark{mode, entry, std::string(m_tree.GetItemText(entry)), std::move(lines)};
}

const char* CSession::MarkedCaption() const {
    switch (m_mark.mode) {
        case ClipMode::Copy:
            return "Marked item [Copy]";
        case ClipMode::Cut:
            return "Marked item [Cut]";
        default:
            return "Marked item";
    }
}

std::string CSession::MarkedName() const {
    return m_mark.mode == ClipMode::None ? "empty" : m_mark.name;
}
