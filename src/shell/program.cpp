#include "shell/program.h"

#include "core/program_run.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "feeds/add_feed_form.h"
#include "feeds/feeds_form.h"
#include "forms/form_registry.h"
#include "reports/reports_form.h"
#include "screens/inputs_form.h"
#include "screens/ration_form.h"
#include "shell/about_form.h"
#include "shell/batch_form.h"
#include "shell/navigation.h"
#include "shell/parent_form.h"
#include "shell/splash_form.h"

namespace tav {
namespace {

template <class T>
void Register(const std::string& name) {
    TheForms().Register(name, [] { return std::make_unique<T>(); });
}

void RegisterForms() {
    Register<ParentForm>("frmParent");
    Register<SplashForm>("frmSplash");
    Register<AboutForm>("frmAbout");
    Register<BatchForm>("frmBatchOps");
    Register<InputsForm>("frmInputs");
    Register<FeedsForm>("frmFeeds");
    Register<AddFeedForm>("frmAddFeed");
    Register<RationForm>("frmRation");
    Register<ReportsForm>("frmReports");
}

}  // namespace

void StartProgram(Platform& platform) {
    static Navigation navigation;
    SetPlatform(platform);
    SetMainWindow(&navigation);
    TheForms().Clear();
    TheProgram() = {};
    TheSimulation() = {};
    LastReport() = {};
    RegisterForms();
    TheForms().Run([] { Main(); });
}

}  // namespace tav
