#include "shell/batch_form.h"

#include "core/main_window.h"
#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_file.h"
#include "forms/form_registry.h"
#include "shell/batch_run.h"

#include <filesystem>

namespace tav {
namespace {

constexpr std::string_view kWelcome =
    "To use the Batch File Utility, use the Drive, Directory and File list-boxes to find\r\n"
    "the TAV Dairy Simulation Data Files you wish to run in your batch.  Select these files\r\n"
    "then add them to the Selected Files list using the 'Add Selected File(s) To List'\r\n"
    "button.  Once all of the files to be run have been added, press 'Run Batch Files' to\r\n"
    "run the batch.";

// The loader of the batch has a message of its own only where it tells an error's number.
class MessageWatcher : public BatchWatcher {
    // The screen that makes room for the new simulation stores what it shows, and may compute, so
    // that the record must hold then what could be read of the file.
    void LoadFailed(const std::string& file, const FileFault& fault) override {
        try {
            ReadSimulation(file, TheSimulation());
        } catch (const FileFault&) {  // the one to be told
        }
        ThePlatform().ShowMessage(LoadFailureMessage(fault, "Cannot Load Data File."));
    }
};

bool ConfirmsRemoval(const std::string& question) {
    return ThePlatform().ShowMessage({question, "Confirm Removal of File(s) From List",
                                      MessageIcon::None, MessageButtons::OKCancel}) !=
           MessageAnswer::Cancel;
}

void ReportRunFailure(const RuntimeError& error) {
    if (error.Number == kDialogCancelled) return;
    ThePlatform().ShowMessage({"Error Number :  " + NumberText(error.Number) +
                                   "\rError Description :  " + error.Description + "\r",
                               "Error Running Batch Files", MessageIcon::Critical});
}

}  // namespace

BatchForm::BatchForm() : Form("frmBatchOps") {
    Caption = "Batch File Utility";
    Sizable = false;
    SetUpControls();
    PlaceControls();
    TieEvents();
}

void BatchForm::SetUpControls() {
    FileList.SetPattern("*.tav");
    FileList.MultiSelect = true;
    cmdAdd.Caption = "Add Selected File(s) To List";
    lblSelectedFiles.Caption = "Selected Files";
    lstSelectedFiles.MultiSelect = true;
    cmdRemove.Caption = "Remove Selected File(s) From list";
    cmdRemoveAll.Caption = "Remove All Files From List";
    cmdRun.Caption = "Run Batch Files";
    cmdReturn.Caption = "Return";
    cmdReturn.Cancel = true;
}

void BatchForm::PlaceControls() {
    DriveList.Move(240, 240, 3120, 315);
    DirList.Move(240, 660, 3120, 2640);
    FileList.Move(3600, 240, 3480, 3060);
    cmdAdd.Move(7320, 240, 3120, 435);
    lblSelectedFiles.Move(240, 3480, 6840, 255);
    lstSelectedFiles.Move(240, 3750, 6840, 2730);
    cmdRemove.Move(7320, 3750, 3120, 435);
    cmdRemoveAll.Move(7320, 4290, 3120, 435);
    cmdRun.Move(7320, 5505, 3120, 435);
    cmdReturn.Move(7320, 6045, 3120, 435);
    Width = 10680 + FrameWidth;
    Height = 6720 + FrameHeight;
}

void BatchForm::TieEvents() {
    DriveList.Change = [this] { DriveList_Change(); };
    DirList.Change = [this] { FileList.SetPath(DirList.Path()); };
    cmdAdd.Click = [this] { cmdAdd_Click(); };
    cmdRemove.Click = [this] { cmdRemove_Click(); };
    cmdRemoveAll.Click = [this] { cmdRemoveAll_Click(); };
    cmdRun.Click = [this] { cmdRun_Click(); };
    cmdReturn.Click = [this] { cmdReturn_Click(); };
}

// The lists begin in the current folder.
void BatchForm::Form_Load() {
    const std::string folder = ThePlatform().CurrentFolder();
    FileList.SetPath(DirList.Path());
    const std::string drive = std::filesystem::path(folder).root_name().string();
    if (!drive.empty()) DriveList.SetDrive(drive);
    ShowFolder(folder);
}

void BatchForm::Form_Activate() {
    ThePlatform().ShowMessage(
        {std::string(kWelcome), "Welcome to the Batch File Utility!", MessageIcon::Information});
    EmptyBatch();
}

void BatchForm::EmptyBatch() {
    BatchFileCount = 0;
    BatchFiles.clear();
}

// A folder that can't be shown, such as that of a drive that isn't ready, leads to the drive that
// is always there.
void BatchForm::ShowFolder(const std::string& path) {
    try {
        DirList.SetPath(path);
    } catch (const RuntimeError&) {
        DriveList.SetDrive(DriveList::DefaultDrive());
        DirList.SetPath(DriveList::DefaultDrive());
    }
}

void BatchForm::DriveList_Change() { ShowFolder(DriveList.Drive()); }

// The marks stay, and a file that is in the list already is added once more.
void BatchForm::cmdAdd_Click() {
    if (FileList.ListCount() == 0) return;
    for (int i = 0; i < FileList.ListCount(); ++i) {
        if (!FileList.Selected(i)) continue;
        BatchFileCount = ToInteger(BatchFileCount + 1);
        BatchFiles.push_back(JoinPath(DirList.Path(), FileList.List(i)));
        lstSelectedFiles.AddItem(BatchFiles.back());
    }
    FileList.SetListIndex(-1);
}

void BatchForm::cmdRemove_Click() {
    if (!ConfirmsRemoval("Are you sure you want to remove these files from your batch list?")) {
        return;
    }
    if (lstSelectedFiles.ListCount() > 0) RemoveSelectedLines();
}

// The line that moves up into a removed one's place is not looked at, and the batch loses its last
// file whichever line goes. Both are meant.
void BatchForm::RemoveSelectedLines() {
    const int count = lstSelectedFiles.ListCount();
    for (int i = 0; i < count; ++i) {
        if (i >= lstSelectedFiles.ListCount() || !lstSelectedFiles.Selected(i)) continue;
        lstSelectedFiles.RemoveItem(i);
        if (BatchFiles.empty()) continue;
        BatchFileCount = ToInteger(BatchFileCount - 1);
        BatchFiles.pop_back();
    }
    lstSelectedFiles.SetListIndex(-1);
}

void BatchForm::cmdRemoveAll_Click() {
    if (!ConfirmsRemoval("Are you sure you want to remove all of files from your batch list?")) {
        return;
    }
    lstSelectedFiles.Clear();
    EmptyBatch();
}

void BatchForm::ChooseOutput() {
    CommonDialog1.Flags = CommonDialog::kFileMustExist;
    CommonDialog1.InitDir = TheProgram().StartDir;
    CommonDialog1.Filter = "All Files (*.*)|*.*|Comma Delimited Text Files(*.CSV)|*.CSV";
    CommonDialog1.FilterIndex = 2;
    if (!ThePlatform().ShowSaveDialog(CommonDialog1)) Raise(kDialogCancelled);
}

void BatchForm::RunBatchFiles() {
    recordReplaced_ = recordReplaced_ || !BatchFiles.empty();
    MessageWatcher watcher;
    std::size_t next = 0;
    const NextFile files = [&]() -> std::optional<std::string> {
        if (next == BatchFiles.size()) return std::nullopt;
        return BatchFiles[next++];
    };
    BatchRun(files, watcher).Run(CommonDialog1.FileName);
}

void BatchForm::cmdRun_Click() {
    try {
        ChooseOutput();
        RunBatchFiles();
        ThePlatform().ShowMessage(
            {"Your batch files have been run and the comma-delimited text file, created.",
             "Batch Files Run", MessageIcon::Information});
        TheForms().Unload(Name());
    } catch (const RuntimeError& error) {
        ReportRunFailure(error);
    }
}

void BatchForm::cmdReturn_Click() { TheForms().Unload(Name()); }

// The screen behind shows what the batch has left in the record, so that it doesn't store the
// animal and the quantities of before over it.
void BatchForm::Form_Unload(bool& /*cancel*/) {
    if (recordReplaced_) TheMainWindow().SetUpScreen(TheProgram().CurrentScreen);
}

}  // namespace tav
