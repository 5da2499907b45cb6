#include "respondent.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <algorithm>

#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace tav {
namespace {

constexpr int kLookEvery = 2;  // milliseconds

void Escape(QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }

bool OnlyInforms(const QWidget& dialog) {
    const auto* const box = qobject_cast<const QMessageBox*>(&dialog);
    return box != nullptr && box->standardButtons() == QMessageBox::Ok;
}

}  // namespace

Respondent::Respondent() { Look(); }

void Respondent::Press(QMessageBox::StandardButton button) {
    Do([button](QWidget& dialog) {
        auto* const box = qobject_cast<QMessageBox*>(&dialog);
        QAbstractButton* const wanted = box == nullptr ? nullptr : box->button(button);
        if (wanted == nullptr) {
            ADD_FAILURE() << "no such button to press: " << button;
            Escape(dialog);
            return;
        }
        QTest::mouseClick(wanted, Qt::LeftButton);
    });
}

void Respondent::ChooseFile(const std::string& path) {
    Do([path](QWidget& dialog) {
        auto* const box = qobject_cast<QFileDialog*>(&dialog);
        auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (box == nullptr || name == nullptr) {
            ADD_FAILURE() << "no file dialog to choose " << path << " in";
            Escape(dialog);
            return;
        }
        box->selectFile(QString::fromStdString(path));
        QTest::keyClick(name, Qt::Key_Return);
    });
}

void Respondent::ChooseEntry(const std::string& text) {
    DoInMenu([text](QWidget& dialog) {
        auto* const menu = qobject_cast<QMenu*>(&dialog);
        QAction* wanted = nullptr;
        for (QAction* const action : menu == nullptr ? QList<QAction*>{} : menu->actions()) {
            if (action->text().remove(QLatin1Char('&')).toStdString() == text) wanted = action;
        }
        if (wanted == nullptr) {
            ADD_FAILURE() << "no entry " << text << " to choose";
            Escape(dialog);
            return;
        }
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(wanted).center());
    });
}

void Respondent::Do(std::function<void(QWidget&)> answer) {
    answers_.push_back({std::move(answer), false});
}

void Respondent::DoInMenu(std::function<void(QWidget&)> answer) {
    answers_.push_back({std::move(answer), true});
}

std::vector<Said> Respondent::TakeSaid() { return std::exchange(said_, {}); }

// A menu that nobody has an answer for is one that the test itself has opened.
QWidget* Respondent::Asking() const {
    if (QWidget* const popUp = QApplication::activePopupWidget()) {
        if (always_) return popUp;
        const bool wanted = !answers_.empty() && answers_.front().ToMenu;
        return wanted ? qobject_cast<QMenu*>(popUp) : nullptr;
    }
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

// A timer of its own each time: one whose event is being dealt with doesn't tick.
void Respondent::Look() {
    QTimer::singleShot(kLookEvery, this, [this] { Look(); });
    QWidget* const dialog = Asking();
    if (dialog == nullptr || !dialog->isVisible()) return;
    if (std::find(inHand_.begin(), inHand_.end(), dialog) != inHand_.end()) return;
    if (const auto* const box = qobject_cast<QMessageBox*>(dialog)) Note(*box);
    inHand_.push_back(dialog);
    Answer(*dialog);
    inHand_.pop_back();
}

void Respondent::Answer(QWidget& dialog) {
    if (always_) {
        always_(dialog);
        return;
    }
    if (OnlyInforms(dialog) && answers_.empty()) {
        QTest::mouseClick(qobject_cast<QMessageBox*>(&dialog)->button(QMessageBox::Ok),
                          Qt::LeftButton);
        return;
    }
    if (answers_.empty()) {
        ADD_FAILURE() << "nobody expected " << dialog.metaObject()->className() << ": "
                      << (said_.empty() ? std::string() : said_.back().Text);
        Escape(dialog);
        return;
    }
    const Reply answer = std::move(answers_.front());
    answers_.pop_front();
    answer.Give(dialog);
}

void Respondent::Note(const QMessageBox& box) {
    said_.push_back({box.windowTitle().toStdString(), box.text().toStdString(),
                     box.informativeText().toStdString(), box.icon(), box.textFormat(),
                     box.standardButtons()});
}

}  // namespace tav
