// The batch file utility, frmBatchOps, a modal window over the main window: the user gathers
// simulation files and gets one text file with a row for each.
#pragma once

#include "core/platform.h"
#include "forms/buttons.h"
#include "forms/file_lists.h"
#include "forms/form.h"
#include "forms/passive_controls.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tav {

class BatchForm : public Form {
  public:
    BatchForm();

    tav::DriveList DriveList{*this, "DriveList"};
    FolderList DirList{*this, "DirList"};
    tav::FileList FileList{*this, "FileList"};
    CommandButton cmdAdd{*this, "cmdAdd"};
    Label lblSelectedFiles{*this, "lblSelectedFiles"};
    ListBox lstSelectedFiles{*this, "lstSelectedFiles"};
    CommandButton cmdRemove{*this, "cmdRemove"};
    CommandButton cmdRemoveAll{*this, "cmdRemoveAll"};
    CommandButton cmdRun{*this, "cmdRun"};
    CommandButton cmdReturn{*this, "cmdReturn"};
    CommonDialog CommonDialog1;

    // The full paths of the files to run, side by side with the lines of lstSelectedFiles.
    std::int16_t BatchFileCount = 0;
    std::vector<std::string> BatchFiles;  // element 0 is file 1

  private:
    void SetUpControls();
    void PlaceControls();
    void TieEvents();
    void ShowFolder(const std::string& path);
    void EmptyBatch();
    void RemoveSelectedLines();
    void ChooseOutput();
    void RunBatchFiles();

    void DriveList_Change();
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdRemoveAll_Click();
    void cmdRun_Click();
    void cmdReturn_Click();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool& cancel) override;

    bool recordReplaced_ = false;  // a batch has been run, to its end or not
};

}  // namespace tav
