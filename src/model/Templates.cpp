#include "model/Templates.h"

#include <filesystem>
#include <utility>

#include "base/FileWriter.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/OobDocument.h"
#include "model/Session.h"

// Either path may have been written on Windows, so both separators end the target file's folder.
// The joined path is resolved where it is opened.
std::string TemplateFilePath(const CGameDatabase& database) {
    const std::string& file = database.m_strTemplateFile;
    if (file.empty() || std::filesystem::path(file).is_absolute()) {
        return file;
    }
    const std::string& target = database.m_strFilePath;
    const std::size_t separator = target.find_last_of("/\\");
    return separator == std::string::npos ? file : target.substr(0, separator + 1) + file;
}

CWriteResult SaveTemplate(CSession& session, HTREEITEM entry,
                          std::unique_ptr<CTemplateRecord> record) {
    CGameDatabase& database = *session.Database();
    record->m_nOrdinal = database.m_Templates.Count();
    database.m_Templates.PushBack(std::move(record));
    CWriteResult written = database.Save(database.m_strFilePath);
    if (written.Done()) {
        std::string block;
        session.Document()->m_writer.WriteSubtree(block, session.Tree(), entry);
        block += "</T>\r\n";
        written = AppendToFile(TemplateFilePath(database), block);
        if (written.Done()) {
            return written;
        }
        database.m_Templates.PopBack();
        if (const CWriteResult again = database.Save(database.m_strFilePath); !again.Done()) {
            written.error += "; " + again.error;
        }
        return written;
    }
    database.m_Templates.PopBack();
    return written;
}

HTREEITEM InsertTemplate(CSession& session, const CTemplateRecord& record, HTREEITEM parent,
                         HTREEITEM after) {
    const std::string path = TemplateFilePath(*session.Database());
    COobReader& reader = session.Document()->m_reader;
    return session.Edit().Insert(parent, [&](CTreeStore& tree) {
        reader.InsertTemplate(path, tree, parent, after, record.m_nOrdinal);
    });
}
