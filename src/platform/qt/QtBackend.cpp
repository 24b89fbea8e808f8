#include "platform/qt/QtBackend.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>

#include "base/PathResolve.h"
#include "platform/Dialog.h"
#include "platform/FileDialog.h"
#include "platform/MessageBox.h"
#include "platform/qt/QtDialogWindow.h"
#include "platform/qt/QtMenus.h"
#include "platform/qt/QtText.h"

// A dialog window that the backend keeps track of while it lives.
class CQtBackendWindow : public CQtDialogWindow {
public:
    CQtBackendWindow(CDialog& dialog, QWidget* owner, CQtBackend& backend)
        : CQtDialogWindow(dialog, owner), m_backend(backend) {
        m_backend.m_windows[&dialog] = this;
    }
    ~CQtBackendWindow() override { m_backend.m_windows.erase(&Dialog()); }

    void RunModalLoop() override {
        m_backend.SyncAll();
        CQtDialogWindow::RunModalLoop();
    }

private:
    CQtBackend& m_backend;
};

CQtBackend::CQtBackend() {
    SetBackend(this);
}

CQtBackend::~CQtBackend() {
    SetBackend(nullptr);
}

QWidget* CQtBackend::WindowOf(const CDialog* dialog) const {
    auto found = m_windows.find(dialog);
    return found == m_windows.end() ? nullptr : found->second->Window();
}

void CQtBackend::SyncAll() {
    for (auto& [dialog, window] : m_windows) {
        window->Sync();
    }
}

std::unique_ptr<CDialogWindow> CQtBackend::CreateDialogWindow(CDialog& dialog, CDialog* owner) {
    return std::make_unique<CQtBackendWindow>(dialog, WindowOf(owner), *this);
}

int CQtBackend::MessageBox(CDialog* owner, const std::string& text, const std::string& caption,
                           unsigned type) {
    SyncAll();
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    switch (type & MB_ICONMASK) {
        case MB_ICONQUESTION:
            icon = QMessageBox::Question;
            break;
        case MB_ICONEXCLAMATION:
            icon = QMessageBox::Warning;
            break;
        case MB_ICONINFORMATION:
            icon = QMessageBox::Information;
            break;
        default:
            break;
    }
    const bool yesNo = (type & MB_TYPEMASK) == MB_YESNO;
    // Messages name files ("Bad or missing ... file!", a write's failure), so their text is read
    // as a path is: the program's own Windows-1252 words are ASCII, and a name of the order of
    // battle with accents is not valid UTF-8, so it still shows as Windows-1252.
    QMessageBox box(icon, ToQString(caption), PathForDisplay(text),
                    yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, WindowOf(owner));
    const int pressed = box.exec();
    if (!yesNo) {
        return IDOK;
    }
    return pressed == QMessageBox::Yes ? IDYES : IDNO;
}

// "Desc|*.a;*.b|" becomes Qt's "Desc (*.a *.b)", unless the description already ends with the
// patterns in brackets.
bool CQtBackend::RunFileDialog(const CFileDialog& request, std::string& path) {
    SyncAll();
    QStringList filters;
    for (const CFileFilter& filter : request.Filters()) {
        QString patterns = ToQString(filter.pattern);
        patterns.replace(';', ' ');
        QString description = ToQString(filter.description);
        if (!description.endsWith("(" + patterns + ")")) {
            description += " (" + patterns + ")";
        }
        filters.push_back(description);
    }
    QFileDialog chooser(WindowOf(request.Parent()), QString(),
                        PathToQString(ResolvePath(request.m_strInitialDir)));
    chooser.setAcceptMode(request.IsOpenDialog() ? QFileDialog::AcceptOpen
                                                 : QFileDialog::AcceptSave);
    chooser.setFileMode(request.MustExist() ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    chooser.setNameFilters(filters);
    chooser.setDefaultSuffix(ToQString(request.DefaultExtension()));
    chooser.setOption(QFileDialog::DontConfirmOverwrite, !request.AsksBeforeOverwrite());
    if (!request.FileName().empty()) {
        chooser.selectFile(PathToQString(ResolvePath(request.FileName())));
    }
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) {
        return false;
    }
    path = PathFromQString(chooser.selectedFiles().first());
    return true;
}

namespace {
void FillMenu(QMenu& menu, const std::vector<CMenuItem>& items, const CDialog& owner) {
    for (const CMenuItem& item : items) {
        if (item.IsSeparator()) {
            menu.addSeparator();
        } else if (item.list) {
            FillMenu(*menu.addMenu(ToQString(item.text)), owner.MenuList(item.id), owner);
        } else if (item.IsPopup()) {
            FillMenu(*menu.addMenu(ToQString(item.text)), item.popup, owner);
        } else {
            AddMenuCommand(menu, item)->setEnabled(owner.IsCommandEnabled(item.id));
        }
    }
}
}  // namespace

int CQtBackend::TrackPopupMenu(CDialog& owner, const CMenuItem& popup, CPoint screen) {
    SyncAll();
    QMenu menu(WindowOf(&owner));
    FillMenu(menu, popup.popup, owner);
    QAction* chosen = menu.exec(QPoint(screen.x, screen.y));
    return chosen ? chosen->data().toInt() : 0;
}

bool CQtBackend::IsShiftDown() const {
    return (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) != 0;
}
