// Somebody who clicks and types without looking: whatever happens, the program neither falls over
// nor leaves its user without a keyboard.
#include "core/main_window.h"
#include "desktop/form_view.h"
#include "driven_program.h"

#include <QApplication>
#include <QPushButton>
#include <array>
#include <random>

namespace tav {
namespace {

constexpr int kSteps = 400;

class Careless : public DrivenProgram, public testing::WithParamInterface<unsigned> {
  protected:
    Careless() : random_(GetParam()) {
        Asked.Always([this](QWidget& dialog) { Answer(dialog); });
    }

    int Any(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

    void Step() {
        QWidget* const window = Front();
        if (window == nullptr) return;
        const QList<QWidget*> all = window->findChildren<QWidget*>();
        if (all.isEmpty()) return;
        QWidget* const widget = all.at(Any(static_cast<int>(all.size())));
        if (!widget->isVisible() || widget->rect().isEmpty()) return;
        const QPoint place(Any(widget->width()), Any(widget->height()));
        const QPoint at = widget->mapTo(window, place);
        last_ = widget->objectName().toStdString() + " (" + widget->metaObject()->className() + ")";
        if (!window->rect().contains(at)) return;  // scrolled out of sight
        switch (Any(5)) {
            case 0:
            case 1: QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at); break;
            case 2: QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, at); break;
            case 3: AnyKey(); break;
            default: QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, at); break;
        }
    }

    // Where the program is. The help is closed at once: it has tests of its own.
    static QWidget* Front() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->windowTitle().contains(QLatin1String("Help")))
                window->close();
        }
        QWidget* const modal = QApplication::activeModalWidget();
        return modal != nullptr ? modal : TheDesktop().FrontWindow();
    }

    // Where the last click went.
    const std::string& Last() const { return last_; }

  private:
    void AnyKey() {
        constexpr std::array kKeys = {
            Qt::Key_Tab,    Qt::Key_Return, Qt::Key_Escape, Qt::Key_F2,
            Qt::Key_Delete, Qt::Key_Down,   Qt::Key_Up,     Qt::Key_Space,
            Qt::Key_Home,   Qt::Key_End,    Qt::Key_5,      Qt::Key_Period,
            Qt::Key_X,      Qt::Key_F1,     Qt::Key_Minus,  Qt::Key_PageDown};
        QWindow* const window = QGuiApplication::focusWindow();
        if (window == nullptr) return;
        const Qt::Key key = kKeys.at(static_cast<std::size_t>(Any(static_cast<int>(kKeys.size()))));
        constexpr std::array<Qt::KeyboardModifiers::enum_type, 6> kHeld = {
            Qt::NoModifier, Qt::NoModifier,    Qt::NoModifier,
            Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
        QTest::keyClick(window, key, kHeld.at(static_cast<std::size_t>(Any(6))));
    }

    // Any button of a message; everything else is closed.
    void Answer(QWidget& dialog) {
        const auto* const box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr) {
            dialog.close();
            return;
        }
        const QList<QAbstractButton*> buttons = box->buttons();
        QTest::mouseClick(buttons.at(Any(static_cast<int>(buttons.size()))), Qt::LeftButton);
    }

    std::mt19937 random_;
    std::string last_;
};

TEST_P(Careless, NothingBreaks) {
    constexpr std::array kScreens = {"Inputs", "Feeds", "Ration", "Reports"};
    for (int i = 0; i < kSteps && !HasFailure(); ++i) {
        if (TheForms().Loaded().empty()) {
            UseSettings("last on ration");
            UseSimulation("Lactating Cow");
            Begin();
            AcceptTerms();
        }
        if (i % 40 == 0 && TheForms().Modal() == nullptr && TheForms().Find("frmParent") != nullptr)
            TheDesktop().Perform([&] { TheMainWindow().ClickButton(kScreens.at(Any(4))); });
        Step();
        Settle();
        ASSERT_EQ(TheProgram().FatalError, 0)
            << "step " << i << ": " << (Messages().empty() ? "" : Messages().back().Text);
        if (TheForms().Loaded().empty() || QApplication::activePopupWidget()) continue;
        const QWidget* const focus = QApplication::focusWidget();
        EXPECT_TRUE(focus != nullptr && focus->isEnabled())
            << "no keyboard after step " << i << ", " << Last();
    }
    Messages();
}

INSTANTIATE_TEST_SUITE_P(Seeds, Careless, testing::Range(1U, 9U));

}  // namespace
}  // namespace tav
