// One control of a running dialog shown as a Qt widget: built from its state, connected to the
// framework, and brought in step with the state after every event. Each kind of control is one
// subclass (QtControls.h); the dialog window holds them and runs the events they report.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Geometry.h"

class CDialogDriver;
class CWnd;
class QWidget;

// What a control needs from the window it sits in.
class CQtControlHost {
public:
    virtual ~CQtControlHost() = default;
    // Runs a user event through the framework, then shows the state it left.
    virtual void Handle(const std::function<void(CDialogDriver&)>& event) = 0;
    // Hands a change to the framework without showing the state again (typing).
    virtual CDialogDriver& Driver() = 0;
};

class CQtControl {
public:
    CQtControl(CWnd& state, QWidget* widget, CQtControlHost& host);
    virtual ~CQtControl();
    CQtControl(const CQtControl&) = delete;
    CQtControl& operator=(const CQtControl&) = delete;

    CWnd& State() const { return m_state; }
    QWidget* Widget() const { return m_pWidget; }
    int Id() const;
    // Where points within the control are measured from (a tree's rows: its viewport).
    virtual QWidget* Client() const { return m_pWidget; }

    // A control whose own text does not say what it is takes its accessible name from the
    // control that describes it, now and whenever that one's text changes; a symbol-only button
    // ("...") adds its own text.
    void NameAfter(const CQtControl* describer, bool withOwnText);
    // Shows what changed in the state since the last time.
    void Sync();

protected:
    // The text changed (not for an edit the user is typing into: it shows it already).
    virtual void ShowText(const QString&) {}
    // The parts of the state only this kind has.
    virtual void SyncKind() {}
    virtual int ShownHeight(const CRect& rect) const { return rect.Height(); }
    // The widget already shows text (the user typed it), so it is not set again.
    void TextShown(std::string text);
    // The widget shows something the state does not hold: show the state's text again.
    void ShowStateText();

    CWnd& m_state;
    QWidget* m_pWidget;
    CQtControlHost& m_host;

private:
    QString NameNow() const;
    void LabelledBy();

    std::string m_shownText;
    bool m_bTextShown = false;
    bool m_bEnabled = true;
    bool m_bVisible = true;
    CRect m_rect{-1, -1, -1, -1};
    unsigned m_nLowered = 0;
    const CWnd* m_pDescriber = nullptr;
    QWidget* m_pDescriberWidget = nullptr;
    bool m_bWithOwnText = false;
    bool m_bNamed = false;
    bool m_bNameShown = false;
    QString m_shownName;
};

// The widget and its wiring for control state, a child of parent.
std::unique_ptr<CQtControl> CreateQtControl(CWnd& state, QWidget* parent, CQtControlHost& host);

// Gives every control that shows no caption of its own (an edit, list, drop-down, tree or a
// symbol-only button) its accessible name: the check box or static on its row to its left, else
// the static just before it, else its own template text.
void NameControls(const std::vector<std::unique_ptr<CQtControl>>& controls);
