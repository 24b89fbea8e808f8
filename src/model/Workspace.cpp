#include "model/Workspace.h"

#include <fstream>
#include <sstream>

#include "base/FileWriter.h"
#include "base/LineCut.h"
#include "base/LineTokenizer.h"
#include "base/Result.h"
#include "base/TextLines.h"

CWorkspace::CWorkspace() {
    m_nType = TYPE_WORKSPACE;
    m_strPicturePaths.fill("empty");
}

void CWorkspace::WriteTo(std::ostream& out, std::uint8_t) {
    for (const std::string* text :
         {&m_strTitle, &m_strOobFile, &m_strBackupFile, &m_strTargetFile}) {
        out << *text << '|' << kLineEnd;
    }
    for (int i = 0; i < kPictures; ++i) {
        out << static_cast<unsigned>(m_nPictureFlags[i]) << '|' << m_strPicturePaths[i] << '|'
            << kLineEnd;
    }
}

// A file shorter than nine lines leaves the fields of its missing lines as they were, as a file
// that does not open leaves them all: a cut-off workspace keeps "empty" picture paths rather than
// gaining empty ones.
void CWorkspace::ReadFrom(std::istream& in) {
    CLineTokenizer tokenizer;
    tokenizer.SetDelimiter('|');
    std::string line;
    for (std::string* text : {&m_strTitle, &m_strOobFile, &m_strBackupFile, &m_strTargetFile}) {
        if (ReadTextLine(in, line) == LineRead::End) {
            return;
        }
        tokenizer.SetLine(line);
        *text = tokenizer.ReadString();
    }
    for (int i = 0; i < kPictures; ++i) {
        if (ReadTextLine(in, line) == LineRead::End) {
            return;
        }
        tokenizer.SetLine(line);
        m_nPictureFlags[i] = StoreTruncated<std::uint8_t>(tokenizer.ReadNumber());
        ++tokenizer.Position();
        m_strPicturePaths[i] = tokenizer.ReadString();
    }
}

std::string CWorkspace::ToText() {
    std::ostringstream out;
    WriteTo(out, 0);
    std::string text = std::move(out).str();
    CutOverLongLines(text, '|');
    return text;
}

CWriteResult CWorkspace::Save(const std::string& path) {
    return SaveAs(m_strPath, path, [&] { return ReplaceFile(path, ToText()); });
}

int CWorkspace::Load(const std::string& path) {
    m_strPath = path;
    std::ifstream in;
    if (!OpenToRead(path, in)) {
        return RESULT_CANNOT_OPEN;
    }
    ReadFrom(in);
    return RESULT_DONE;
}
