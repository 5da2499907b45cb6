#include "feeds/feed_columns.h"

#include <algorithm>

namespace tav {
namespace {

using F = FeedRecord;

// name, field, label in the grid of a feed's data, header in the picker if it isn't the name,
// traits
struct Entry {
    std::string_view Name;
    FeedField Field;
    std::string_view Label;
    std::string_view Header = {};
    unsigned Traits = kPlainColumn;
};

void Add(std::vector<FeedColumn>& columns, ColumnGroup group, std::initializer_list<Entry> entries,
         unsigned traits = kPlainColumn) {
    for (const Entry& entry : entries) {
        columns.push_back({entry.Name, group, entry.Field, entry.Field, entry.Label,
                           entry.Header.empty() ? entry.Name : entry.Header,
                           entry.Traits | traits});
    }
}

void AddKeys(std::vector<FeedColumn>& columns) {
    Add(columns, ColumnGroup::Key,
        {{kFeedNameColumn, &F::Name, "Feed Name"},
         {kIfnColumn, &F::IFN, "International Feed Number", "Int-Feed-Num"},
         {kCategoryColumn, &F::Category, "Category"},
         {kReadOnlyColumn, &F::ReadOnly, "", "", kHidden}});
}

void AddComposition(std::vector<FeedColumn>& columns) {
    Add(columns, ColumnGroup::Composition,
        {{"Energy Eq Class", &F::EnergyEqClass, "Energy Equation Class", "Energy Equation Class"},
         {"Forage Description", &F::ForageDescription, "Forage Description"},
         {"PAF", &F::PAF, "Processing Factor (PAF)"},
         {"TDN (%DM)", &F::TDN, "TDN (%DM)", "", kComputed},
         {"DE (Mcal/kg)", &F::DE, "DE (Mcal/kg)", "", kComputed},
         {"DM (%AF)", &F::DM, "Dry Matter (%As-Fed)", "DM (%As-Fed)"},
         {"NDF (%DM)", &F::NDF, "NDF (%DM)"},
         {"ADF (%DM)", &F::ADF, "ADF (%DM)"},
         {"Lignin (%DM)", &F::Lignin, "Lignin (%DM)"},
         {"CP (%DM)", &F::CP, "CP (%DM)"},
         {"NDFIP (%DM)", &F::NDFIP, "NDFIP (%DM)"},
         {"ADFIP (%DM)", &F::ADFIP, "ADFIP (%DM)"},
         {"Prt-A (%CP)", &F::PrtA, "Protein-A (%CP)"},
         {"Prt-B (%CP)", &F::PrtB, "Protein-B (%CP)"},
         {"Prt-C (%CP)", &F::PrtC, "Protein-C (%CP)"},
         {"Kd (1/hr)", &F::Kd, "Protein Digestion Rate (%/hr)", "Protein Digestion Rate (%/hr)"},
         {"RUP Digest (%)", &F::RUPDigest, "RUP Digest (%)", "RUP Digestibility (%)"},
         {"Fat (%DM)", &F::Fat, "Fat (%DM)"},
         {"Ash (%DM)", &F::Ash, "Ash (%DM)"},
         {"NFC Digest", &F::NFCDigest, "NFC Digestibility (g/g)", "", kHidden | kZeroMeansOne},
         {"CP Digest", &F::CPDigest, "CP Digestibility", "CP Digestibility (g/g)", kZeroMeansOne},
         {"NDF Digest", &F::NDFDigest, "NDF Digestibility", "NDF Digestibility (g/g)", kComputed},
         {"Fat Digest", &F::FatDigest, "Fat Digestibility", "Fat Digestibility (g/g)",
          kZeroMeansOne}});
}

void AddMinerals(std::vector<FeedColumn>& columns) {
    Add(columns, ColumnGroup::Minerals,
        {{"Ca (%DM)", &F::Ca, "Calcium (%DM)"},
         {"P (%DM)", &F::P, "Phosphorus (%DM)"},
         {"Mg (%DM)", &F::Mg, "Magnesium (%DM)"},
         {"Cl (%DM)", &F::Cl, "Chlorine (%DM)"},
         {"K (%DM)", &F::K, "Potassium (%DM)"},
         {"Na (%DM)", &F::Na, "Sodium (%DM)"},
         {"S (%DM)", &F::S, "Sulfur (%DM)"},
         {"Co (mg/kg)", &F::Co, "Cobalt (mg/kg)"},
         {"Cu (mg/kg)", &F::Cu, "Copper (mg/kg)"},
         {"I (mg/kg)", &F::I, "Iodine (mg/kg)"},
         {"Fe (mg/kg)", &F::Fe, "Iron (mg/kg)"},
         {"Mn (mg/kg)", &F::Mn, "Manganese (mg/kg)"},
         {"Se (mg/kg)", &F::Se, "Selenium (mg/kg)"},
         {"Zn (mg/kg)", &F::Zn, "Zinc (mg/kg)"}});
    Add(columns, ColumnGroup::Bioavailability,
        {{"Ca-Bio (g/g)", &F::CaBio, "Ca - Bioavailability (g/g)"},
         {"P-Bio (g/g)", &F::PBio, "P - Bioavailability (g/g)"},
         {"Mg-Bio (g/g)", &F::MgBio, "Mg - Bioavailability (g/g)"},
         {"Cl-Bio (g/g)", &F::ClBio, "Cl - Bioavailability (g/g)"},
         {"K-Bio (g/g)", &F::KBio, "K - Bioavailability (g/g)"},
         {"Na-Bio (g/g)", &F::NaBio, "Na - Bioavailability (g/g)"},
         {"S-Bio (g/g)", &F::SBio, "S - Bioavailability (g/g)"},
         {"Co-Bio (g/g)", &F::CoBio, "Co - Bioavailability (g/g)"},
         {"Cu-Bio (g/g)", &F::CuBio, "Cu - Bioavailability (g/g)"},
         {"I-Bio (g/g)", &F::IBio, "I - Bioavailability (g/g)"},
         {"Fe-Bio (g/g)", &F::FeBio, "Fe - Bioavailability (g/g)"},
         {"Mn-Bio (g/g)", &F::MnBio, "Mn - Bioavailability (g/g)"},
         {"Se-Bio (g/g)", &F::SeBio, "Se - Bioavailability (g/g)"},
         {"Zn-Bio (g/g)", &F::ZnBio, "Zn - Bioavailability (g/g)"}},
        kZeroMeansOne);
    Add(columns, ColumnGroup::Vitamins,
        {{"Vit-A (1000 IU/kg)", &F::VitA, "Vit-A (1000 IU/kg)"},
         {"Vit-D (1000 IU/kg)", &F::VitD, "Vit-D (1000 IU/kg)"},
         {"Vit-E (IU/kg)", &F::VitE, "Vit-E (IU/kg)"}});
}

void AddAminoAcids(std::vector<FeedColumn>& columns) {
    Add(columns, ColumnGroup::AminoAcids,
        {{"Arg (%CP)", &F::Arg, "Arginine (%CP)"},
         {"His (%CP)", &F::His, "Histidine (%CP)"},
         {"Ile (%CP)", &F::Ile, "Isoleucine (%CP)"},
         {"Leu (%CP)", &F::Leu, "Leucine (%CP)"},
         {"Lys (%CP)", &F::Lys, "Lysine (%CP)"},
         {"Met (%CP)", &F::Met, "Methionine (%CP)"},
         {"Cys (%CP)", &F::Cys, "Cystine (%CP)", "", kHidden | kNotRead},
         {"Phe (%CP)", &F::Phe, "Phenylalanine (%CP)"},
         {"Thr (%CP)", &F::Thr, "Threonine (%CP)"},
         {"Trp (%CP)", &F::Trp, "Tryptophan (%CP)"},
         {"Val (%CP)", &F::Val, "Valine (%CP)"}});
}

// A calf feed's ash is read into the field that the screens show, and written back from the one
// that a simulation file holds. This is meant.
void AddCalfColumns(std::vector<FeedColumn>& columns) {
    Add(columns, ColumnGroup::Calf,
        {{"cDM (%)", &F::cDM, "Dry Matter (%As-Fed)", "DM (%As-Fed)"},
         {"cGE (Mcal/kg)", &F::cGE, "GE (Mcal/kg)", "GE (Mcal/kg)", kComputed},
         {"cDE (Mcal/kg)", &F::cDE, "DE (Mcal/kg)", "DE (Mcal/kg)", kComputed},
         {"cME (Mcal/kg)", &F::cME, "ME (Mcal/kg)", "ME (Mcal/kg)", kComputed},
         {"cNEm (Mcal/kg)", &F::cNEm, "NEm (Mcal/kg)", "NEm (Mcal/kg)", kComputed},
         {"cNEg (Mcal/kg)", &F::cNEg, "NEg (Mcal/kg)", "NEg (Mcal/kg)", kComputed},
         {"cCP (%DM)", &F::cCP, "CP (%DM)", "CP (%DM)"},
         {"cEE (%DM)", &F::cEE, "Fat (%DM)", "Fat (%DM)"},
         {"cAsh (%DM)", &F::Ash, "Ash (%DM)", "Ash (%DM)"}});
    columns.back().WrittenFrom = &F::cAsh;
}

std::vector<FeedColumn> MakeColumns() {
    std::vector<FeedColumn> columns;
    AddKeys(columns);
    AddComposition(columns);
    AddMinerals(columns);
    AddAminoAcids(columns);
    AddCalfColumns(columns);
    return columns;
}

}  // namespace

bool FeedColumn::BelongsTo(bool calfFeed) const {
    switch (Group) {
        case ColumnGroup::Composition:
        case ColumnGroup::AminoAcids: return !calfFeed;
        case ColumnGroup::Calf: return calfFeed;
        default: return true;
    }
}

const std::vector<FeedColumn>& FeedColumns() {
    static const std::vector<FeedColumn> columns = MakeColumns();
    return columns;
}

const FeedColumn* FindFeedColumn(std::string_view name) {
    const auto& columns = FeedColumns();
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const FeedColumn& column) { return column.Name == name; });
    return found == columns.end() ? nullptr : &*found;
}

std::vector<const FeedColumn*> ShownColumns(ColumnGroup group) {
    std::vector<const FeedColumn*> shown;
    for (const FeedColumn& column : FeedColumns()) {
        if (column.Group == group && !column.Has(kHidden)) shown.push_back(&column);
    }
    return shown;
}

}  // namespace tav
