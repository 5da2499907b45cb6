#include "desktop/help_viewer.h"

#include "desktop/help_document.h"

#include <QDesktopServices>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

namespace tav {
namespace {

constexpr int kPageRole = Qt::UserRole;
constexpr QSize kWindow = {1000, 680};
constexpr int kLeftWidth = 300;

// The font of a page, a little larger than that of the screens. It is in points, since it is these
// by which the browser makes letters larger and smaller.
QFont PageFont(QFont font) {
    font.setPointSizeF(QFontInfo(font).pointSizeF() + 1);
    return font;
}

}  // namespace

HelpViewer::HelpViewer(HelpFile file, QWidget* parent)
    : QWidget(parent, Qt::Window),
      file_(std::move(file)),
      search_(file_),
      back_(new QToolButton),
      forward_(new QToolButton),
      home_(new QToolButton),
      tabs_(new QTabWidget),
      contents_(new QTreeWidget),
      index_(new HelpPanel("Keyword")),
      hits_(new HelpPanel("Words in the text")),
      page_(new QTextBrowser) {
    setWindowTitle("TAV Dairy Cattle Program Help");
    auto* const layout = new QVBoxLayout(this);
    auto* const buttons = new QHBoxLayout;
    for (QToolButton* const button : {back_, forward_, home_})
        buttons->addWidget(button);
    buttons->addStretch();
    layout->addLayout(buttons);
    auto* const splitter = new QSplitter;
    splitter->addWidget(tabs_);
    splitter->addWidget(page_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kLeftWidth, kWindow.width() - kLeftWidth});
    splitter->setChildrenCollapsible(false);
    layout->addWidget(splitter, 1);
    MakeButtons();
    MakeContents();
    MakeIndex();
    MakeSearch();
    page_->setOpenLinks(false);
    page_->setAccessibleName("Help page");
    page_->installEventFilter(this);
    page_->setFont(PageFont(font()));
    connect(page_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { OpenLink(link); });
    TieKeys();
    resize(kWindow.boundedTo(QGuiApplication::primaryScreen()->availableSize() * 9 / 10));
    Open({file_.FirstPage(), {}});
}

void HelpViewer::MakeButtons() {
    const auto make = [this](QToolButton& button, const char* caption, const char* toolTip,
                             QStyle::StandardPixmap picture) {
        button.setText(caption);
        button.setToolTip(toolTip);
        button.setIcon(style()->standardIcon(picture));
        button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button.setAutoRaise(true);
    };
    make(*back_, "Back", "The page before this one (Alt+Left)", QStyle::SP_ArrowBack);
    make(*forward_, "Forward", "The page after this one (Alt+Right)", QStyle::SP_ArrowForward);
    make(*home_, "Home", "The first page (Alt+Home)", QStyle::SP_DirHomeIcon);
    connect(back_, &QToolButton::clicked, this, [this] { GoBack(); });
    connect(forward_, &QToolButton::clicked, this, [this] { GoForward(); });
    connect(home_, &QToolButton::clicked, this, [this] { Open({file_.FirstPage(), {}}); });
}

void HelpViewer::MakeContents() {
    contents_->setHeaderHidden(true);
    contents_->setAccessibleName("Contents");
    for (const HelpChapter& chapter : file_.Chapters()) {
        auto* const parent = new QTreeWidgetItem(contents_, {chapter.Title});
        for (const QString& name : chapter.Pages) {
            auto* const item = new QTreeWidgetItem(parent, {file_.Page(name)->Title});
            item->setData(0, kPageRole, name);
        }
    }
    const auto open = [this](const QTreeWidgetItem* item) {
        const QString name = item->data(0, kPageRole).toString();
        if (!name.isEmpty()) Open({name, {}});
    };
    connect(contents_, &QTreeWidget::itemActivated, this, open);
    connect(contents_, &QTreeWidget::itemClicked, this, open);
    tabs_->addTab(contents_, "Contents");
}

// A keyword that leads to several pages has their titles behind it.
void HelpViewer::MakeIndex() {
    const QList<HelpKeyword> keywords = file_.Index();
    for (qsizetype i = 0; i < keywords.size(); ++i) {
        const HelpKeyword& keyword = keywords[i];
        const auto same = [&](qsizetype other) {
            return other >= 0 && other < keywords.size() && keywords[other].Text == keyword.Text;
        };
        const bool several = same(i - 1) || same(i + 1);
        const QString& title = file_.Page(keyword.Target.Page)->Title;
        index_->Offer(several ? keyword.Text + " (" + title + ")" : keyword.Text, keyword.Target);
    }
    index_->Changed = [this](const QString& text) { index_->Filter(text); };
    index_->Chosen = [this](const HelpTarget& target) { Open(target); };
    tabs_->addTab(index_, "Index");
}

void HelpViewer::MakeSearch() {
    hits_->Changed = [this](const QString& text) { Search(text); };
    hits_->Chosen = [this](const HelpTarget& target) { Open(target, hits_->Text()); };
    tabs_->addTab(hits_, "Search");
}

void HelpViewer::TieKeys() {
    const auto tie = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    const auto turnTo = [this](int tab) {
        return [this, tab] {
            tabs_->setCurrentIndex(tab);
            LeftSide()->setFocus(Qt::ShortcutFocusReason);
        };
    };
    tie(Qt::Key_Escape, [this] { close(); });
    tie(Qt::ALT | Qt::Key_Left, [this] { GoBack(); });
    tie(Qt::ALT | Qt::Key_Right, [this] { GoForward(); });
    tie(Qt::ALT | Qt::Key_Home, [this] { Open({file_.FirstPage(), {}}); });
    constexpr std::array kTabKeys = {Qt::Key_C, Qt::Key_D, Qt::Key_S};
    for (int tab = 0; tab < tabs_->count(); ++tab) {
        const QKeySequence keys(Qt::ALT | kTabKeys.at(static_cast<std::size_t>(tab)));
        tie(keys, turnTo(tab));
        tabs_->setTabToolTip(tab, keys.toString(QKeySequence::NativeText));
    }
    tie(QKeySequence::Find, turnTo(tabs_->indexOf(hits_)));
    tie(Qt::Key_F6,
        [this] { (page_->hasFocus() ? LeftSide() : page_)->setFocus(Qt::ShortcutFocusReason); });
    for (const auto key : {Qt::Key_Plus, Qt::Key_Equal})
        tie(Qt::CTRL | key, [this] { page_->zoomIn(); });
    tie(Qt::CTRL | Qt::Key_Minus, [this] { page_->zoomOut(); });
    tie(Qt::CTRL | Qt::Key_0, [this] { page_->setFont(PageFont(font())); });
}

// What takes the keyboard on the left.
QWidget* HelpViewer::LeftSide() const {
    if (tabs_->currentWidget() == index_) return index_->Entry();
    if (tabs_->currentWidget() == hits_) return hits_->Entry();
    return contents_;
}

void HelpViewer::ShowContents() {
    tabs_->setCurrentIndex(0);
    Present();
    contents_->setFocus();
}

bool HelpViewer::ShowTopic(const QString& controlName) {
    const HelpNote* const note = file_.Note(controlName);
    if (note == nullptr || file_.Page(note->Target.Page) == nullptr) return false;
    Present();
    Open(note->Target);
    page_->setFocus();
    return true;
}

void HelpViewer::Present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpViewer::Open(const HelpTarget& target, const QString& words) {
    if (file_.Page(target.Page) == nullptr) return;
    words_ = words;
    if (visit_ >= 0) {
        Visit& here = visits_[visit_];
        if (here.Target == target) {
            Render(target);
            return;
        }
        here.Scroll = page_->verticalScrollBar()->value();
    }
    visits_.resize(visit_ + 1);
    visits_.append({target, 0});
    ++visit_;
    Render(target);
}

void HelpViewer::OpenLink(const QUrl& link) {
    if (!link.scheme().isEmpty()) {
        QDesktopServices::openUrl(link);
        return;
    }
    HelpTarget target = TargetOfLink(link.toString());
    if (target.Page.isEmpty()) target.Page = visits_[visit_].Target.Page;
    Open(target);
}

void HelpViewer::GoBack() {
    if (visit_ <= 0) return;
    visits_[visit_].Scroll = page_->verticalScrollBar()->value();
    --visit_;
    ShowVisit();
}

void HelpViewer::GoForward() {
    if (visit_ + 1 >= visits_.size()) return;
    visits_[visit_].Scroll = page_->verticalScrollBar()->value();
    ++visit_;
    ShowVisit();
}

void HelpViewer::ShowVisit() {
    Render(visits_[visit_].Target);
    page_->verticalScrollBar()->setValue(visits_[visit_].Scroll);
}

void HelpViewer::Render(const HelpTarget& target) {
    ShowPage(*file_.Page(target.Page));
    page_->moveCursor(QTextCursor::Start);
    MarkWords();
    if (!target.Section.isEmpty()) page_->scrollToAnchor(target.Section);
    SelectInContents(target.Page);
    back_->setEnabled(visit_ > 0);
    forward_->setEnabled(visit_ + 1 < visits_.size());
}

// The page is made before it is shown: as long as no widget looks on, nothing is laid out.
void HelpViewer::ShowPage(const HelpPage& page) {
    page_->setExtraSelections({});  // they belong to the page before
    const QPointer<QTextDocument> before = page_->document();
    auto* const document = new QTextDocument(page_);
    document->setDefaultFont(page_->font());
    RenderHelpPage(page, page_->palette(), *document);
    page_->setDocument(document);
    delete before.data();  // unless the browser has done so
}

void HelpViewer::SelectInContents(const QString& page) {
    for (QTreeWidgetItemIterator at(contents_); *at != nullptr; ++at) {
        if ((*at)->data(0, kPageRole).toString() == page) contents_->setCurrentItem(*at);
    }
}

// Words that have been searched for stand in the colours of a selection.
void HelpViewer::MarkWords() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : HelpSearch::WordsOf(words_)) {
        const QRegularExpression wanted("\\b" + QRegularExpression::escape(word),
                                        QRegularExpression::CaseInsensitiveOption);
        QTextCursor found = page_->document()->find(wanted);
        for (; !found.isNull(); found = page_->document()->find(wanted, found)) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = found;
            mark.format.setBackground(palette().highlight());
            mark.format.setForeground(palette().highlightedText());
            marks.append(mark);
        }
    }
    page_->setExtraSelections(marks);
}

void HelpViewer::Search(const QString& text) {
    hits_->Clear();
    const QList<HelpHit> hits = search_.Find(text);
    for (const HelpHit& hit : hits)
        hits_->Offer(hit.Title, hit.Target);
    if (hits.isEmpty() && !text.trimmed().isEmpty()) hits_->Tell("Nothing found");
}

// The page has its colours in it, so it is made anew when they change.
bool HelpViewer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange && visit_ >= 0) {
        visits_[visit_].Scroll = page_->verticalScrollBar()->value();
        ShowVisit();
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace tav
