#include "reports/generator.h"

#include "core/number_text.h"
#include "core/platform.h"
#include "core/program_state.h"
#include "reports/components.h"
#include "reports/header_footer.h"

#include <array>

namespace tav {
namespace {

enum class Animals { NotCalves, NotCalvesNorHeifers, Calves, All };

struct Component {
    const char* Name;
    Animals For;
    void (*Write)(ReportWriter& writer);
};

constexpr std::array<Component, 12> kComponents = {{
    {"Summary Report", Animals::NotCalves, WriteSummaryReport},
    {"Energy and Protein Supply", Animals::NotCalves, WriteEnergyAndProteinSupply},
    {"Duodenal Amino Acid Supply", Animals::NotCalves, WriteDuodenalAminoAcidSupply},
    {"Dry Matter Intake", Animals::NotCalves, WriteDryMatterIntake},
    {"Maintenance Requirements", Animals::NotCalves, WriteMaintenanceRequirements},
    {"Growth Requirements", Animals::NotCalves, WriteGrowthRequirements},
    {"Target Weights and ADG", Animals::NotCalves, WriteTargetWeightsAndADG},
    {"Pregnancy Requirements", Animals::NotCalves, WritePregnancyRequirements},
    {"Lactation Requirements", Animals::NotCalves, WriteLactationRequirements},
    {"Reserves Requirements", Animals::NotCalvesNorHeifers, WriteReservesRequirements},
    {"Calf Requirements", Animals::Calves, WriteCalfRequirements},
    {"Mineral Requirements", Animals::All, WriteMineralRequirements},
}};

bool IsFor(const Component& component, std::string_view animalType) {
    const bool calf = animalType == kYoungCalf;
    switch (component.For) {
        case Animals::NotCalves: return !calf;
        case Animals::NotCalvesNorHeifers: return !calf && animalType != kReplacementHeifer;
        case Animals::Calves: return calf;
        case Animals::All: return true;
    }
    return false;
}

const Component& ComponentOf(std::string_view name) {
    for (const Component& component : kComponents) {
        if (component.Name == name) return component;
    }
    Raise(kInvalidProcedureCall);
}

void SetHeaderFooter(ReportSink& sink) {
    const DateTime now = ThePlatform().Now();
    sink.Header = JoinedFields(TheSimulation().HeaderFields, now);
    sink.Footer = JoinedFields(TheSimulation().FooterFields, now);
}

int PercentageOf(std::string_view zoom) {
    if (zoom.empty()) return 100;
    try {
        const int percent = TextToInteger(zoom.substr(0, zoom.size() - 1));
        return percent < 1 ? 100 : percent;
    } catch (const RuntimeError&) {
        return 100;
    }
}

void KeepSelection(const std::vector<bool>& marked) {
    std::int32_t mask = 0;
    for (std::size_t i = 0; i < marked.size(); ++i)
        mask += marked[i] ? 1 << i : 0;
    TheProgram().ReportSelectionMask = mask;
    TheProgram().ReportSelectionIsCalf = TheSimulation().AnimalType == kYoungCalf;
}

}  // namespace

std::vector<std::string> ReportComponentNames(std::string_view animalType) {
    std::vector<std::string> names;
    for (const Component& component : kComponents) {
        if (IsFor(component, animalType)) names.emplace_back(component.Name);
    }
    return names;
}

void SetZoom(ReportSink& sink, std::string_view zoom) {
    static constexpr std::array<std::pair<std::string_view, ZoomMode>, 4> kModes = {
        {{"Page Width", ZoomMode::PageWidth},
         {"Thumbnail", ZoomMode::Thumbnail},
         {"Two Pages", ZoomMode::TwoPages},
         {"Whole Page", ZoomMode::WholePage}}};
    for (const auto& [text, mode] : kModes) {
        if (zoom != text) continue;
        sink.ZoomMode = mode;
        return;
    }
    sink.ZoomMode = ZoomMode::Percentage;
    sink.Zoom = PercentageOf(zoom);
}

void SetUpDocument(ReportSink& sink, const ReportState& state) {
    sink.DocName = "TAV Dairy Cattle Program - Report";
    sink.SetFont({state.BodyFontName, state.BodyFontSize});
    sink.MarginLeft = 720;
    sink.MarginRight = 720;
    sink.MarginTop = 1080;
    sink.MarginHeader = 360;
    sink.MarginFooter = 360;
    sink.Header = "Non-Empty";  // until the fields are known, so that their room is kept
    sink.Footer = "Non-Empty";
    sink.HdrFont = {state.HeaderFontName, state.HeaderFontSize};
    SetZoom(sink, TheProgram().DefaultZoom);
    sink.StartDoc();
}

void AssembleReports(ReportSink& sink, ReportState& state, const std::vector<bool>& marked) {
    state.SavedOrientation = static_cast<std::int16_t>(sink.Orientation);
    state.OrientationRestorePending = false;
    SetHeaderFooter(sink);
    const std::vector<std::string> names = ReportComponentNames(TheSimulation().AnimalType);
    for (std::size_t i = 0; i < names.size() && i < marked.size(); ++i) {
        if (!marked[i]) continue;
        ReportWriter writer(sink, TheSimulation(), state, TheProgram().UseMetric);
        ComponentOf(names[i]).Write(writer);
    }
    KeepSelection(marked);
    sink.EndDoc();
}

std::vector<bool> KeptSelection(std::size_t components) {
    ProgramState& program = TheProgram();
    const bool calf = TheSimulation().AnimalType == kYoungCalf;
    if (calf != program.ReportSelectionIsCalf) program.ReportSelectionMask = 0;
    std::vector<bool> marked(components);
    std::int32_t rest = program.ReportSelectionMask;
    for (std::size_t i = components; i-- > 0;) {
        const std::int32_t bit = 1 << i;
        marked[i] = bit <= rest;
        if (marked[i]) rest -= bit;
    }
    return marked;
}

}  // namespace tav
