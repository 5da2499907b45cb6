#include "desktop/view_factory.h"

#include "desktop/button_views.h"
#include "desktop/combo_view.h"
#include "desktop/document_view.h"
#include "desktop/file_list_views.h"
#include "desktop/grid_view.h"
#include "desktop/list_view.h"
#include "desktop/numeric_view.h"
#include "desktop/passive_views.h"
#include "desktop/tab_view.h"
#include "desktop/text_view.h"
#include "desktop/timer_view.h"
#include "forms/controls.h"

namespace tav {
namespace {

template <class View, class Model>
std::unique_ptr<ControlView> Make(Control& control, QWidget& parent, FormView& form) {
    return std::make_unique<View>(static_cast<Model&>(control), parent, form);
}

// It has no label beside it.
std::unique_ptr<ControlView> MakeFileList(FileList& files, QWidget& parent, FormView& form) {
    auto view = std::make_unique<ListView>(files, parent, form);
    view->Widget().setAccessibleName(QStringLiteral("Files"));
    return view;
}

}  // namespace

std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget& parent, FormView& form) {
    switch (control.Kind()) {
        case ControlKind::Label: return Make<LabelView, Label>(control, parent, form);
        case ControlKind::Frame: return Make<FrameView, Frame>(control, parent, form);
        case ControlKind::TextBox:
            return MakeTextView(static_cast<TextBox&>(control), parent, form);
        case ControlKind::NumericTextBox:
            return Make<NumericView, NumericTextBox>(control, parent, form);
        case ControlKind::ListBox: return Make<ListView, ListBox>(control, parent, form);
        case ControlKind::ComboBox: return Make<ComboView, ComboBox>(control, parent, form);
        case ControlKind::OptionButton:
            return Make<OptionView, OptionButton>(control, parent, form);
        case ControlKind::CheckBox: return Make<CheckView, CheckBox>(control, parent, form);
        case ControlKind::CommandButton:
            return Make<CommandView, CommandButton>(control, parent, form);
        case ControlKind::PictureBox:
            return Make<PictureBoxView, PictureBox>(control, parent, form);
        case ControlKind::Image: return Make<ImageView, Image>(control, parent, form);
        case ControlKind::Line: return Make<LineView, Line>(control, parent, form);
        case ControlKind::Timer: return Make<TimerView, Timer>(control, parent, form);
        case ControlKind::Grid: return Make<GridView, Grid>(control, parent, form);
        case ControlKind::TabControl: return Make<TabView, TabControl>(control, parent, form);
        case ControlKind::DriveList: return Make<DriveListView, DriveList>(control, parent, form);
        case ControlKind::FolderList:
            return Make<FolderListView, FolderList>(control, parent, form);
        case ControlKind::FileList:
            return MakeFileList(static_cast<FileList&>(control), parent, form);
        case ControlKind::DocumentPane:
            return Make<DocumentView, DocumentPane>(control, parent, form);
        case ControlKind::Toolbar:
        case ControlKind::Menu: return nullptr;
    }
    return nullptr;
}

}  // namespace tav
