#include "platform/qt/QtText.h"

#include <QFile>

#include "base/PathText.h"
#include "base/Windows1252.h"
#include "platform/Wnd.h"

QString ToQString(std::string_view windows1252) {
    const std::u32string text = Windows1252ToUnicode(windows1252);
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

bool FromQString(const QString& text, std::string& windows1252) {
    const QList<uint> ucs4 = text.toUcs4();
    return UnicodeToWindows1252(std::u32string(ucs4.begin(), ucs4.end()), windows1252);
}

QString PathToQString(const std::string& path) {
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

std::string PathFromQString(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QString PathForDisplay(std::string_view path) {
    const std::u32string text = PathToUnicode(path);
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

std::string PathFromDisplay(const QString& text, std::string_view original) {
    const QList<uint> ucs4 = text.toUcs4();
    return UnicodeToPath(std::u32string(ucs4.begin(), ucs4.end()), original);
}

QString ControlTextToQString(const CWnd& control, std::string_view text) {
    return control.HasStyle(STYLE_PATH) ? PathForDisplay(text) : ToQString(text);
}

QValidator::State CWindows1252Validator::validate(QString& input, int&) const {
    std::string bytes;
    if (!FromQString(input, bytes)) {
        return Invalid;
    }
    if (m_bDigitsOnly) {
        for (char c : bytes) {
            if (c < '0' || c > '9') {
                return Invalid;
            }
        }
    }
    return Acceptable;
}
