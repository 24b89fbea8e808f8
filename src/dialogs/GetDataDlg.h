// "Get Data - options" (dialog 119): reads the strengths left after a battle from one of the
// game's files into the order of battle. The user picks the game file, what becomes of the
// entries it does not mention and of structures left without men, and whether the result
// replaces the open order of battle (one step of its history) or goes to another file, leaving
// the open one as it is. DoModal gives 1 when the import was done, 0 after Cancel, Escape or the
// close box.
#pragma once

#include <string>

#include "platform/Dialog.h"

class CSession;

class CGetDataDlg : public CDialog {
public:
    // Where the result goes (the "Output to" choice).
    enum : int { kThisFile = 0, kOtherFile = 1 };

    explicit CGetDataDlg(CSession& session);

    std::string m_strInitialDir;  // where both pickers open; set before DoModal

    // The fields, in exchange order.
    std::string m_strOutputFile;
    std::string m_strDataFile;
    int m_nOutputTo = kThisFile;
    int m_nEmptyStructures = 0;  // 0 remove, 1 skip
    int m_nNotExisting = 0;      // 0 remove, 1 set strength to 0, 2 skip

    // The import flags the two choices give.
    int ImportFlags() const;

protected:
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnPickDataFile();
    void OnPickOutputFile();
    void OnOutputToChanged();
    void OnAccept();
    // Accept only with a game file, and with an output file when the result goes to another one.
    void Validate();
    // Runs a picker; the chosen path, or field left as it was on cancel.
    void PickFile(std::string& field, bool open, const char* defExt, const char* filter);
    // True when path is the order-of-battle or backup file of the open workspace.
    bool IsWorkspaceFile(const std::string& path) const;

    CSession& m_session;
};
