// Windows-1252 text at the Qt boundary: what the program holds as bytes is shown as Unicode, and
// what the user types must fit back into Windows-1252.
#pragma once

#include <QString>
#include <QValidator>
#include <string>
#include <string_view>

QString ToQString(std::string_view windows1252);
// False when text holds a character Windows-1252 cannot hold.
bool FromQString(const QString& text, std::string& windows1252);

// Paths are the file system's own bytes, never converted.
QString PathToQString(const std::string& path);
std::string PathFromQString(const QString& path);

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
