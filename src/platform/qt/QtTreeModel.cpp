#include "platform/qt/QtTreeModel.h"

#include <vector>

#include "platform/qt/QtText.h"

CQtTreeModel::CQtTreeModel(CTreeStore& store, bool editableLabels, QObject* parent)
    : QAbstractItemModel(parent), m_store(store), m_bEditableLabels(editableLabels) {
    m_store.SetObserver(this);
}

CQtTreeModel::~CQtTreeModel() {
    m_store.SetObserver(nullptr);
}

HTREEITEM CQtTreeModel::EntryOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<HTREEITEM>(index.internalPointer()) : nullptr;
}

QModelIndex CQtTreeModel::IndexOf(HTREEITEM entry) const {
    if (entry == nullptr || entry == m_store.HiddenRoot() || entry == TVI_ROOT) {
        return {};
    }
    return createIndex(static_cast<int>(entry->Row()), 0, entry);
}

QModelIndex CQtTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const HTREEITEM owner = parent.isValid() ? EntryOf(parent) : m_store.HiddenRoot();
    if (column != 0 || row < 0 || static_cast<std::size_t>(row) >= owner->ChildCount()) {
        return {};
    }
    return createIndex(row, 0, owner->Child(static_cast<std::size_t>(row)));
}

QModelIndex CQtTreeModel::parent(const QModelIndex& child) const {
    const HTREEITEM entry = EntryOf(child);
    return entry ? IndexOf(entry->Parent()) : QModelIndex();
}

int CQtTreeModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0) {
        return 0;
    }
    const HTREEITEM owner = parent.isValid() ? EntryOf(parent) : m_store.HiddenRoot();
    return static_cast<int>(owner->ChildCount());
}

int CQtTreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool CQtTreeModel::hasChildren(const QModelIndex& parent) const {
    return rowCount(parent) > 0;
}

QVariant CQtTreeModel::data(const QModelIndex& index, int role) const {
    const HTREEITEM entry = EntryOf(index);
    if (entry == nullptr || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return ToQString(entry->Label());
}

Qt::ItemFlags CQtTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (m_bEditableLabels) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

void CQtTreeModel::BeforeInsert(HTREEITEM parent, std::size_t row) {
    ++m_nChanging;
    beginInsertRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(row));
}

// An entry put back with its subtree (an undone removal) brings its entries' expansion with it:
// the view hears of every expanded one, so it shows the subtree as it was.
void CQtTreeModel::AfterInsert(HTREEITEM entry) {
    endInsertRows();
    if (onExpandChanged && entry->ChildCount() > 0) {
        std::vector<HTREEITEM> pending{entry};
        while (!pending.empty()) {
            const HTREEITEM e = pending.back();
            pending.pop_back();
            if (e->Expanded()) {
                onExpandChanged(e);
            }
            for (std::size_t i = 0; i < e->ChildCount(); ++i) {
                pending.push_back(e->Child(i));
            }
        }
    }
    ChangeDone();
}

void CQtTreeModel::BeforeRemove(HTREEITEM entry) {
    ++m_nChanging;
    const int row = static_cast<int>(entry->Row());
    beginRemoveRows(IndexOf(entry->Parent()), row, row);
}

void CQtTreeModel::AfterRemove() {
    endRemoveRows();
    ChangeDone();
}

void CQtTreeModel::BeforeReset() {
    ++m_nChanging;
    beginResetModel();
}

void CQtTreeModel::AfterReset() {
    endResetModel();
    ChangeDone();
}

void CQtTreeModel::ChangeDone() {
    --m_nChanging;
    if (m_nChanging == 0 && onChangeDone) {
        onChangeDone();
    }
}

void CQtTreeModel::LabelChanged(HTREEITEM entry) {
    const QModelIndex changed = IndexOf(entry);
    emit dataChanged(changed, changed, {Qt::DisplayRole, Qt::EditRole});
}

void CQtTreeModel::CaretChanged(HTREEITEM entry) {
    if (onCaretChanged) {
        onCaretChanged(entry);
    }
}

void CQtTreeModel::ExpandChanged(HTREEITEM entry) {
    if (onExpandChanged) {
        onExpandChanged(entry);
    }
}
