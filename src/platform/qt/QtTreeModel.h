// The tree store shown to Qt's views: one copy of the data, in the store; the adapter announces
// every change of the store before and after it happens, so a view never reads a half-changed
// store, and passes the store's caret and expansion changes on to whoever shows them.
#pragma once

#include <QAbstractItemModel>
#include <functional>

#include "base/TreeStore.h"

class CQtTreeModel : public QAbstractItemModel, public CTreeObserver {
public:
    CQtTreeModel(CTreeStore& store, bool editableLabels, QObject* parent = nullptr);
    ~CQtTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    CTreeStore& Store() const { return m_store; }
    HTREEITEM EntryOf(const QModelIndex& index) const;
    QModelIndex IndexOf(HTREEITEM entry) const;
    // True between the announcements before and after a change.
    bool Changing() const { return m_nChanging > 0; }

    std::function<void(HTREEITEM)> onCaretChanged;
    std::function<void(HTREEITEM)> onExpandChanged;
    // After a change that the view may have answered by moving its own current entry.
    std::function<void()> onChangeDone;

    void BeforeInsert(HTREEITEM parent, std::size_t row) override;
    void AfterInsert(HTREEITEM entry) override;
    void BeforeRemove(HTREEITEM entry) override;
    void AfterRemove() override;
    void BeforeReset() override;
    void AfterReset() override;
    void LabelChanged(HTREEITEM entry) override;
    void CaretChanged(HTREEITEM entry) override;
    void ExpandChanged(HTREEITEM entry) override;

private:
    void ChangeDone();

    CTreeStore& m_store;
    bool m_bEditableLabels;
    int m_nChanging = 0;
};
