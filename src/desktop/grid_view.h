// The view of a grid: a spreadsheet's habits over the grid's edit events.
#pragma once

#include "desktop/control_view.h"
#include "desktop/grid_cells.h"
#include "forms/grid.h"

#include <QLabel>
#include <QPointer>
#include <QTableView>

namespace tav {

// Typing, F2 or a double click opens the cell under the cursor, Enter and Tab close it and move on,
// Escape gives up. A drop-down opens where the grid has one. A selection is copied as text with
// tabs, and such a text is pasted from the cursor's cell on.
class GridView : public ControlView {
  public:
    GridView(Grid& model, QWidget& parent, FormView& form);

    void FinishTyping() override;
    bool IsTyping() const override { return editor_ != nullptr; }
    QList<QAction*> OwnActions() override { return actions_; }
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncContent() override;
    bool EntersFor(Qt::FocusReason reason) const override;

  private:
    GridView(Grid& model, QTableView* table, FormView& form);
    void SetUpTable();
    void AddActions();

    void SyncCursor();
    void FitColumns();
    void FitRows();
    void FitCorner();
    int ContentWidth(int gridCol) const;

    bool TableEvent(QEvent& event);
    bool EditorEvent(QEvent& event);
    bool HasKeyboard() const;
    bool KeyOnTable(const QKeyEvent& key);
    bool KeyInEditor(const QKeyEvent& key);
    void CursorMoved(const QModelIndex& to);
    void EnterFirstCell();
    // The next cell to the right, or the first of the next row; backwards likewise. False at the
    // end of the grid.
    bool MoveOn(int steps);
    void MoveDown(int rows);
    // To the next or the previous control of the form.
    bool LeaveGrid(int step);

    // Opens the cell under the cursor, with its text or with what has been typed.
    void Open(const QString* typed);
    void ShowEditor();
    QString Typed() const;
    // Hands over what was typed. False if it was refused, and then the cell stays open.
    bool Close();
    void GiveUp();
    void RemoveEditor();

    void Copy(bool withHeaders);
    void Paste();

    Grid& model_;
    QTableView& table_;
    GridCells cells_;
    QLabel* corner_;  // the text of the cell in which the headers meet
    QPointer<QWidget> editor_;
    QList<QAction*> actions_;
    bool syncing_ = false;
    bool closing_ = false;
};

}  // namespace tav
