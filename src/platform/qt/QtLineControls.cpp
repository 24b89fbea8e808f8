// List boxes and drop-down lists.
#include <QComboBox>
#include <QListWidget>

#include "platform/DialogDriver.h"
#include "platform/Wnd.h"
#include "platform/qt/QtControls.h"
#include "platform/qt/QtText.h"

namespace {
QWidget* NewLines(const CWnd& state, QWidget* parent) {
    if (state.Kind() == ControlKind::ComboBox) {
        return new QComboBox(parent);
    }
    auto* list = new QListWidget(parent);
    list->setSelectionMode(state.HasStyle(STYLE_NOSELECTION) ? QAbstractItemView::NoSelection
                                                             : QAbstractItemView::SingleSelection);
    return list;
}
}  // namespace

CQtLineControl::CQtLineControl(CWnd& state, QWidget* parent, CQtControlHost& host)
    : CQtControl(state, NewLines(state, parent), host),
      m_bCombo(state.Kind() == ControlKind::ComboBox) {
    if (m_bCombo) {
        QObject::connect(static_cast<QComboBox*>(m_pWidget), &QComboBox::activated, m_pWidget,
                         [this](int index) { OnSelected(index); });
    } else {
        QObject::connect(static_cast<QListWidget*>(m_pWidget), &QListWidget::currentRowChanged,
                         m_pWidget, [this](int row) { OnSelected(row); });
    }
}

void CQtLineControl::OnSelected(int index) {
    if (m_bShowing) {
        return;
    }
    m_nSelection = index;
    m_host.Handle([this, index](CDialogDriver& driver) { driver.SelectionChanged(Id(), index); });
}

// A drop-down's template height includes its dropped list; the closed box keeps its own.
int CQtLineControl::ShownHeight(const CRect& rect) const {
    return m_bCombo ? std::min(rect.Height(), m_pWidget->sizeHint().height()) : rect.Height();
}

void CQtLineControl::SyncKind() {
    const CLineStore& lines = m_state.Lines();
    std::vector<std::string> now;
    now.reserve(static_cast<std::size_t>(lines.GetCount()));
    for (int i = 0; i < lines.GetCount(); ++i) {
        now.push_back(lines.GetText(i));
    }
    m_bShowing = true;
    if (now != m_lines) {
        QStringList items;
        for (const std::string& line : now) {
            items.push_back(ToQString(line));
        }
        if (m_bCombo) {
            static_cast<QComboBox*>(m_pWidget)->clear();
            static_cast<QComboBox*>(m_pWidget)->addItems(items);
        } else {
            static_cast<QListWidget*>(m_pWidget)->clear();
            static_cast<QListWidget*>(m_pWidget)->addItems(items);
        }
        m_lines = std::move(now);
        m_nSelection = -2;
    }
    if (lines.GetCurSel() != m_nSelection) {
        m_nSelection = lines.GetCurSel();
        if (m_bCombo) {
            static_cast<QComboBox*>(m_pWidget)->setCurrentIndex(m_nSelection);
        } else {
            static_cast<QListWidget*>(m_pWidget)->setCurrentRow(m_nSelection);
        }
    }
    m_bShowing = false;
}
