// The scripted backend: no windows. A test says what the user does in each modal dialog (a
// script per dialog id, run when the dialog opens), answers message boxes, file choosers and
// pop-up menus from queues, and reads back everything that was shown. A message box, file
// chooser, pop-up menu or dialog that the test did not script is a failure that names what it
// showed; so is an answer or script left unused.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Backend.h"
#include "platform/FileDialog.h"
#include "platform/Geometry.h"
#include "platform/MessageBox.h"

class CHeadlessUser;
using CDialogScript = std::function<void(CHeadlessUser&)>;

struct CShownMessage {
    std::string text;
    std::string caption;
    unsigned type = MB_OK;
    int answer = IDOK;

    unsigned Icon() const { return type & MB_ICONMASK; }
    unsigned Buttons() const { return type & MB_TYPEMASK; }
};

struct CShownFileDialog {
    bool open = true;
    std::string defaultExtension;
    std::string fileName;
    std::string initialDir;
    unsigned flags = 0;
    std::vector<CFileFilter> filters;
    std::optional<std::string> answer;  // none: cancelled
    bool askedOverwrite = false;        // the chosen file existed and the user confirmed it
};

struct CShownPopup {
    CMenuItem menu;
    CPoint point;
    int answer = 0;
};

struct CShownDialog {
    int id = 0;
    std::string caption;
};

class CHeadlessBackend : public CBackend {
public:
    // Puts itself in force as the backend, and takes itself out again when destroyed.
    CHeadlessBackend();
    ~CHeadlessBackend() override;

    // What the user does the next time dialog id opens (one script per opening, in order).
    void OnDialog(int dialogId, CDialogScript script);
    // The button pressed in the next message box; with expectedText, the box must show it.
    void AnswerMessage(int button);
    void AnswerMessage(std::string expectedText, int button);
    // The next file chooser: the path the user picks (the default extension is added to a
    // name without one, as the real chooser does), or a cancel. A chooser that must open an
    // existing file refuses a path that does not exist, failing the test; a save chooser that
    // asks before overwriting records that it asked, and the user confirms.
    void AnswerFileDialog(std::string path);
    void CancelFileDialog();
    // The command chosen from the next pop-up menu; 0 dismisses it.
    void AnswerPopupMenu(int command);

    // Where failures go; by default they are only collected.
    void SetFailureHandler(std::function<void(const std::string&)> handler);
    // Reports every answer and script not used, and clears them.
    void CheckAllUsed();
    void Fail(const std::string& problem);

    const std::vector<CShownMessage>& Messages() const { return m_messages; }
    const std::vector<CShownFileDialog>& FileDialogs() const { return m_fileDialogs; }
    const std::vector<CShownPopup>& Popups() const { return m_popups; }
    const std::vector<CShownDialog>& Dialogs() const { return m_dialogs; }
    const std::vector<std::string>& Failures() const { return m_failures; }

    void SetShiftDown(bool down) { m_bShiftDown = down; }

    // The scripted clock in milliseconds: it moves only when a script waits
    // (CHeadlessUser::Wait).
    std::uint64_t Now() const { return m_nNow; }
    void SetNow(std::uint64_t now) { m_nNow = now; }

    // The base units the headless windows measure dialog units with (8-point MS Sans Serif).
    static constexpr int kBaseUnitX = 6;
    static constexpr int kBaseUnitY = 13;

    std::unique_ptr<CDialogWindow> CreateDialogWindow(CDialog& dialog, CDialog* owner) override;
    int MessageBox(CDialog* owner, const std::string& text, const std::string& caption,
                   unsigned type) override;
    bool RunFileDialog(const CFileDialog& request, std::string& path) override;
    int TrackPopupMenu(CDialog& owner, const CMenuItem& popup, CPoint screen) override;
    bool IsShiftDown() const override { return m_bShiftDown; }

    // The next script for dialog id, if the test gave one.
    std::optional<CDialogScript> TakeScript(int dialogId);

private:
    struct MessageAnswer {
        std::optional<std::string> expectedText;
        int button = IDOK;
    };

    std::vector<std::pair<int, CDialogScript>> m_scripts;
    std::deque<MessageAnswer> m_messageAnswers;
    std::deque<std::optional<std::string>> m_fileAnswers;
    std::deque<int> m_popupAnswers;
    std::vector<CShownMessage> m_messages;
    std::vector<CShownFileDialog> m_fileDialogs;
    std::vector<CShownPopup> m_popups;
    std::vector<CShownDialog> m_dialogs;
    std::vector<std::string> m_failures;
    std::function<void(const std::string&)> m_onFailure;
    bool m_bShiftDown = false;
    std::uint64_t m_nNow = 0;
};
