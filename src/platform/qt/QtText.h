// Windows-1252 text at the Qt boundary: what the program holds as bytes is shown as Unicode, and
// what the user types must fit back into Windows-1252.
#pragma once

#include <QString>
#include <QValidator>
#include <string>
#include <string_view>

class CWnd;

QString ToQString(std::string_view windows1252);
// False when text holds a character Windows-1252 cannot hold.
bool FromQString(const QString& text, std::string& windows1252);

// Paths handed to and taken from Qt's file system classes, in the system's own encoding.
QString PathToQString(const std::string& path);
std::string PathFromQString(const QString& path);

// A path as the user sees it (PathToUnicode), and the bytes of such a text the user may have
// changed, given the path it showed (UnicodeToPath): an unchanged text gives original back.
QString PathForDisplay(std::string_view path);
std::string PathFromDisplay(const QString& text, std::string_view original);
// The text of a control: a path (STYLE_PATH) as a path, anything else as Windows-1252.
QString ControlTextToQString(const CWnd& control, std::string_view text);

// Refuses typed text that Windows-1252 cannot hold, and in a digits-only edit anything but
// digits.
class CWindows1252Validator : public QValidator {
public:
    CWindows1252Validator(bool digitsOnly, QObject* parent)
        : QValidator(parent), m_bDigitsOnly(digitsOnly) {}
    State validate(QString& input, int& pos) const override;

private:
    bool m_bDigitsOnly;
};
