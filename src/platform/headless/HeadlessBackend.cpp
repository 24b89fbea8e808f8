#include "platform/headless/HeadlessBackend.h"

#include <filesystem>

#include "platform/Dialog.h"
#include "platform/headless/HeadlessWindow.h"

CHeadlessBackend::CHeadlessBackend() {
    SetBackend(this);
}

CHeadlessBackend::~CHeadlessBackend() {
    SetBackend(nullptr);
}

void CHeadlessBackend::OnDialog(int dialogId, CDialogScript script) {
    m_scripts.emplace_back(dialogId, std::move(script));
}

void CHeadlessBackend::AnswerMessage(int button) {
    m_messageAnswers.push_back({{}, button});
}

void CHeadlessBackend::AnswerMessage(std::string expectedText, int button) {
    m_messageAnswers.push_back({std::move(expectedText), button});
}

void CHeadlessBackend::AnswerFileDialog(std::string path) {
    m_fileAnswers.emplace_back(std::move(path));
}

void CHeadlessBackend::CancelFileDialog() {
    m_fileAnswers.emplace_back(std::nullopt);
}

void CHeadlessBackend::AnswerPopupMenu(int command) {
    m_popupAnswers.push_back(command);
}

void CHeadlessBackend::SetFailureHandler(std::function<void(const std::string&)> handler) {
    m_onFailure = std::move(handler);
}

void CHeadlessBackend::Fail(const std::string& problem) {
    m_failures.push_back(problem);
    if (m_onFailure) {
        m_onFailure(problem);
    }
}

void CHeadlessBackend::CheckAllUsed() {
    for (const auto& [id, script] : m_scripts) {
        Fail("script for dialog " + std::to_string(id) + " never used: the dialog did not open");
    }
    for (const MessageAnswer& answer : m_messageAnswers) {
        Fail("message box answer " + std::to_string(answer.button) + " never used" +
             (answer.expectedText ? " (expected \"" + *answer.expectedText + "\")" : ""));
    }
    for (const auto& answer : m_fileAnswers) {
        Fail("file chooser answer never used: " + (answer ? "\"" + *answer + "\"" : "cancel"));
    }
    for (int answer : m_popupAnswers) {
        Fail("pop-up menu answer " + std::to_string(answer) + " never used");
    }
    m_scripts.clear();
    m_messageAnswers.clear();
    m_fileAnswers.clear();
    m_popupAnswers.clear();
}

std::optional<CDialogScript> CHeadlessBackend::TakeScript(int dialogId) {
    for (auto it = m_scripts.begin(); it != m_scripts.end(); ++it) {
        if (it->first == dialogId) {
            CDialogScript script = std::move(it->second);
            m_scripts.erase(it);
            return script;
        }
    }
    return std::nullopt;
}

std::unique_ptr<CDialogWindow> CHeadlessBackend::CreateDialogWindow(CDialog& dialog, CDialog*) {
    m_dialogs.push_back({dialog.Resource().id, dialog.Resource().caption});
    return std::make_unique<CHeadlessWindow>(dialog, *this);
}

int CHeadlessBackend::MessageBox(CDialog*, const std::string& text, const std::string& caption,
                                 unsigned type) {
    CShownMessage shown{text, caption, type, IDOK};
    if (m_messageAnswers.empty()) {
        Fail("message box not scripted: \"" + text + "\" (caption \"" + caption + "\")");
        // The answer that goes on least: No to a question.
        shown.answer = (type & MB_TYPEMASK) == MB_YESNO ? IDNO : IDOK;
    } else {
        const MessageAnswer answer = m_messageAnswers.front();
        m_messageAnswers.pop_front();
        if (answer.expectedText && *answer.expectedText != text) {
            Fail("message box showed \"" + text + "\", the test expected \"" +
                 *answer.expectedText + "\"");
        }
        shown.answer = answer.button;
    }
    m_messages.push_back(shown);
    return shown.answer;
}

bool CHeadlessBackend::RunFileDialog(const CFileDialog& request, std::string& path) {
    CShownFileDialog shown{request.IsOpenDialog(),
                           request.DefaultExtension(),
                           request.FileName(),
                           request.m_strInitialDir,
                           request.Flags(),
                           request.Filters(),
                           std::nullopt};
    if (m_fileAnswers.empty()) {
        std::string filters;
        for (const CFileFilter& filter : request.Filters()) {
            filters += filter.description + "|" + filter.pattern + "|";
        }
        Fail(std::string("file chooser not scripted: ") +
             (request.IsOpenDialog() ? "open" : "save") + " \"" + filters + "\"");
    } else {
        shown.answer = m_fileAnswers.front();
        m_fileAnswers.pop_front();
    }
    if (shown.answer) {
        const std::string chosen = AddDefaultExtension(*shown.answer, request.DefaultExtension());
        const bool exists = std::filesystem::exists(chosen);
        if (request.MustExist() && !exists) {
            Fail("file chooser refuses \"" + chosen + "\": it must exist and does not");
            shown.answer.reset();
        }
        shown.askedOverwrite = request.AsksBeforeOverwrite() && exists;
    }
    m_fileDialogs.push_back(shown);
    if (!shown.answer) {
        return false;
    }
    path = *shown.answer;
    return true;
}

int CHeadlessBackend::TrackPopupMenu(CDialog&, const CMenuItem& popup, CPoint screen) {
    CShownPopup shown{popup, screen, 0};
    if (m_popupAnswers.empty()) {
        Fail("pop-up menu not scripted: \"" + popup.text + "\"");
    } else {
        shown.answer = m_popupAnswers.front();
        m_popupAnswers.pop_front();
    }
    m_popups.push_back(shown);
    return shown.answer;
}
