// Views of the lists of drives and folders.
#pragma once

#include "desktop/control_view.h"
#include "forms/file_lists.h"

#include <QComboBox>
#include <QListWidget>

namespace tav {

class DriveListView : public ControlView {
  public:
    DriveListView(DriveList& model, QWidget& parent, FormView& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncContent() override;

  private:
    DriveListView(DriveList& model, QComboBox* box, FormView& form);
    void ReadDrives();

    DriveList& model_;
    QComboBox& box_;
};

// The folder that is open stands above the folders in it. A double click or Enter opens one.
class FolderListView : public ControlView {
  public:
    FolderListView(FolderList& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;
    bool ConsumesKey(const QKeyEvent& key) const override;

  private:
    FolderListView(FolderList& model, QListWidget* list, FormView& form);
    void Open(const QListWidgetItem* entry);

    FolderList& model_;
    QListWidget& list_;
    std::string shownPath_;
    std::vector<std::string> shownFolders_;
};

}  // namespace tav
