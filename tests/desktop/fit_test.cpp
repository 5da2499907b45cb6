// Every screen as it stands on the display: no text is cut, nothing covers anything else. Run on
// displays of several sizes.
#include "desktop/form_view.h"
#include "driven_program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QToolButton>

namespace tav {
namespace {

std::string SizeText(const QSize& size) {
    return std::to_string(size.width()) + " by " + std::to_string(size.height());
}

class Fits : public DrivenProgram {
  protected:
    void ExpectFit(const std::string& form) const {
        const FormView& view = ViewOf(form);
        const std::string where = form + " at " + SizeText(view.Surface().size()) + ": ";
        int seen = 0;
        for (QWidget* const widget : view.Surface().findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            ++seen;
            ExpectTextFits(*widget, where);
            ExpectInside(*widget, where);
        }
        EXPECT_GT(seen, 1) << where;
        ExpectApart(view, where);
    }

  private:
    static void Expect(const QSize& needed, const QSize& room, const QWidget& widget,
                       const QString& text, const std::string& where) {
        EXPECT_TRUE(needed.width() <= room.width() && needed.height() <= room.height())
            << where << NameOf(widget) << " \"" << text.toStdString() << "\" needs "
            << SizeText(needed) << " and has " << SizeText(room);
    }

    static std::string NameOf(const QWidget& widget) {
        const QWidget* named = &widget;
        while (named->objectName().isEmpty() && named->parentWidget() != nullptr)
            named = named->parentWidget();
        return named->objectName().toStdString();
    }

    static void ExpectTextFits(QWidget& widget, const std::string& where) {
        if (const auto* const label = qobject_cast<QLabel*>(&widget)) {
            ExpectLabelFits(*label, where);
        } else if (const auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
            ExpectButtonFits(*button, where);
        } else if (auto* const box = qobject_cast<QGroupBox*>(&widget)) {
            ExpectTitleFits(*box, where);
        } else if (const auto* const edit = qobject_cast<QLineEdit*>(&widget)) {
            QStyleOptionFrame option;
            option.initFrom(edit);
            const QRect room =
                edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit);
            Expect(edit->fontMetrics().size(0, edit->text()), room.size(), widget, edit->text(),
                   where);
        } else if (const auto* const list = qobject_cast<QComboBox*>(&widget)) {
            QStyleOptionComboBox option;
            option.initFrom(list);
            const QRect room = list->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                             QStyle::SC_ComboBoxEditField, list);
            Expect(list->fontMetrics().size(0, list->currentText()), room.size(), widget,
                   list->currentText(), where);
        } else if (const auto* const bar = qobject_cast<QTabBar*>(&widget)) {
            Expect(bar->sizeHint(), bar->parentWidget()->size(), widget, "tabs", where);
            for (int i = 0; i < bar->count(); ++i)
                Expect(bar->fontMetrics().size(Qt::TextShowMnemonic, bar->tabText(i)),
                       bar->tabRect(i).size(), widget, bar->tabText(i), where);
        }
    }

    static void ExpectLabelFits(const QLabel& label, const std::string& where) {
        if (label.text().isEmpty()) return;
        // A line that is broken must find its words' width as well as its lines' height.
        const QRect room = label.contentsRect();
        const QRect needed = label.fontMetrics().boundingRect(
            room, Qt::TextWordWrap | static_cast<int>(Qt::AlignTop), label.text());
        Expect(needed.size(), room.size(), label, label.text(), where);
    }

    static void ExpectButtonFits(const QAbstractButton& button, const std::string& where) {
        if (button.text().isEmpty()) return;
        QStyleOptionButton option;
        option.initFrom(&button);
        option.text = button.text();
        const QStyle& style = *button.style();
        QRect room = button.rect();
        if (button.inherits("QRadioButton")) {
            room = style.subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
        } else if (button.inherits("QCheckBox")) {
            room = style.subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
        } else if (button.inherits("QPushButton")) {
            room = style.subElementRect(QStyle::SE_PushButtonContents, &option, &button);
        }
        Expect(button.fontMetrics().size(Qt::TextShowMnemonic, button.text()), room.size(), button,
               button.text(), where);
    }

    static void ExpectTitleFits(QGroupBox& box, const std::string& where) {
        if (box.title().isEmpty()) return;
        Expect(box.fontMetrics().size(Qt::TextShowMnemonic, box.title()),
               QSize(box.width() - 2 * box.fontMetrics().averageCharWidth(), box.height()), box,
               box.title(), where);
    }

    static void ExpectInside(const QWidget& widget, const std::string& where) {
        if (!widget.objectName().startsWith(QLatin1String("frm"))) return;
        EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry()))
            << where << NameOf(widget) << " stands out of " << NameOf(*widget.parentWidget())
            << ": to " << widget.geometry().right() + 1 << ", " << widget.geometry().bottom() + 1
            << " of " << SizeText(widget.parentWidget()->size());
    }

    // Pictures may lie under texts; what is drawn as a rule is no control.
    static bool Counts(const Control& control) {
        const ControlKind kind = control.Kind();
        return kind != ControlKind::Line && kind != ControlKind::Image &&
               kind != ControlKind::Timer && kind != ControlKind::PictureBox;
    }

    static void ExpectApart(const FormView& view, const std::string& where) {
        std::vector<QWidget*> widgets;
        for (const Control* const control : view.TheForm().Controls()) {
            ControlView* const shown = view.ViewOf(*control);
            if (shown != nullptr && Counts(*control) && shown->Widget().isVisible())
                widgets.push_back(&shown->Widget());
        }
        for (std::size_t i = 0; i < widgets.size(); ++i) {
            for (std::size_t j = i + 1; j < widgets.size(); ++j) {
                if (widgets[i]->parentWidget() != widgets[j]->parentWidget()) continue;
                const QRect common = widgets[i]->geometry() & widgets[j]->geometry();
                EXPECT_TRUE(common.isEmpty())
                    << where << NameOf(*widgets[i]) << " and " << NameOf(*widgets[j]) << " share "
                    << SizeText(common.size());
            }
        }
    }
};

TEST_F(Fits, TheTerms) {
    Begin();
    ExpectFit("frmSplash");
}

TEST_F(Fits, TheScreensOfACow) {
    OpenCow("Inputs");
    for (int page = 0; page < 4; ++page) {
        ClickTab("frmInputs.InputTabs", page);
        ExpectFit("frmInputs");
    }
    for (const std::string screen : {"Feeds", "Ration", "Reports"}) {
        ClickToolbar(screen);
        ExpectFit("frm" + screen);
    }
    for (const QToolButton* const button : MainWindow().findChildren<QToolButton*>()) {
        if (!button->isVisible()) continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
    EXPECT_LE(MainWindow().frameGeometry().width(),
              QGuiApplication::primaryScreen()->size().width());
}

// Pounds make the longest lines, and a calf and a heifer have fields of their own.
TEST_F(Fits, TheScreensOfOtherAnimalsInPounds) {
    for (const char* const animal :
         {"Young Calf", "Replacement Heifer", "Dry Cow", "Grazing Cow in Hilly Country"}) {
        UseSettings("last on inputs");
        UseSimulation(animal);
        Begin();
        AcceptTerms();
        ClickTab("frmInputs.InputTabs", 0);
        Click("frmInputs.optEnglish");
        Click("frmInputs.optAsFed");
        const int pages = TheSimulation().AnimalType == "Young Calf" ? 2 : 4;
        for (int page = 1; page < pages; ++page) {
            ClickTab("frmInputs.InputTabs", page);
            ExpectFit("frmInputs");
        }
        ClickToolbar("Ration");
        ExpectFit("frmRation");
        TheDesktop().Perform([] { TheProgram().Ended = true; });
        Settle();
    }
}

// Every line that the results can have.
TEST_F(Fits, AllResultsOfTheRation) {
    OpenCow("Inputs");
    Click("frmInputs.optEnglish");
    Click("frmInputs.chkDefaultSumRes");
    const std::vector<std::string> lines = Model<ComboBox>("frmInputs.cboSumRes(0)").Items();
    ASSERT_GT(lines.size(), 10U);
    for (std::size_t first = 0; first < lines.size(); first += 10) {
        TheDesktop().Perform([&] {
            for (std::size_t i = 0; i < 10; ++i) {
                const auto name = "frmInputs.cboSumRes(" + std::to_string(i) + ")";
                auto& box = Model<ComboBox>(name);
                box.UserChoose(static_cast<int>((first + i) % lines.size()));
            }
        });
        ClickToolbar("Ration");
        ExpectFit("frmRation");
        ClickToolbar("Inputs");
        Messages();
    }
}

TEST_F(Fits, TheWarningOfTheRation) {
    OpenCow("Ration");
    Model<Label>("frmRation.lblRDPWarning").Visible = true;
    TheDesktop().Refresh();
    ExpectFit("frmRation");
}

TEST_F(Fits, TheDialogs) {
    OpenCow("Feeds");
    Click("frmFeeds.cmdAddFeed");
    ExpectFit("frmAddFeed");
    for (const int list : {1, 2})
        Mark("frmAddFeed.lstCategory(" + std::to_string(list) + ")",
             Model<ListBox>("frmAddFeed.lstCategory(" + std::to_string(list) + ")").List(0));
    ExpectFit("frmAddFeed");
    Click("frmAddFeed.cmdCancel");
    ClickMenu("Go To...", "Batch File Utility");
    Messages();
    ExpectFit("frmBatchOps");
    Click("frmBatchOps.cmdReturn");
    ClickMenu("Help", "About the TAV Dairy Cattle Program");
    ExpectFit("frmAbout");
}

TEST_F(Fits, TheCredits) {
    OpenCow("Inputs");
    ClickTab("frmInputs.InputTabs", 0);
    ViewOf("frmInputs").ViewOf(ControlOf("frmInputs.InputTabs"))->FocusWidget()->setFocus();
    Settle();
    Key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(WidgetOf("frmInputs.lblEasterEgg").isVisible());
    for (const char* const text : {"Programmed By...", "Click on Picture To Exit"}) {
        Model<Label>("frmInputs.lblEasterEgg").Caption = text;
        TheDesktop().Refresh();
        ExpectFit("frmInputs");
    }
}

}  // namespace
}  // namespace tav
