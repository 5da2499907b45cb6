// The grids of the ration and of a feed's values, and the hands that work in them.
#pragma once

#include "core/number_text.h"
#include "driven_program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTableView>
#include <utility>

namespace tav {

class Grids : public DrivenProgram {
  protected:
    ~Grids() override { SetDecimalSeparator('.'); }

    void OpenRation() {
        OpenCow("Ration");
        name_ = "frmRation.grdRation";
    }
    void OpenFeed() {
        OpenCow("Feeds");
        name_ = "frmFeeds.grdFeedData";
    }
    QTableView& Table() const { return Widget<QTableView>(name_); }
    Grid& TheGrid() const { return Model<Grid>(name_); }
    std::string Cell(int row, int col) const { return TheGrid().TextMatrix(row, col); }
    QWidget* Editor() const {
        for (QWidget* const child :
             Table().viewport()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (child->isVisible()) return child;
        }
        return nullptr;
    }
    std::string EditorText() const {
        const auto* const edit = qobject_cast<QLineEdit*>(Editor());
        return edit == nullptr ? "no editor" : edit->text().toStdString();
    }
    QModelIndex IndexOf(int row, int col) const {
        return Table().model()->index(row - TheGrid().FixedRows, col - TheGrid().FixedCols);
    }
    // The grid's cell, counted with its fixed rows and columns.
    void ClickCell(int row, int col) const {
        Table().scrollTo(IndexOf(row, col));
        Click(*Table().viewport(), Table().visualRect(IndexOf(row, col)).center());
    }
    void Paste(const char* text) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        Key(Qt::Key_V, Qt::ControlModifier);
    }
    static std::string Copied() { return QGuiApplication::clipboard()->text().toStdString(); }
    std::pair<int, int> Cursor() const { return {TheGrid().Row(), TheGrid().Col()}; }

  private:
    std::string name_;
};

using Place = std::pair<int, int>;

}  // namespace tav
