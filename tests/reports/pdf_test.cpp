#include "pdf/pdf_document.h"
#include "support/report_fixture.h"
#include "support/temporary_folder.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tav {
namespace {

class PdfTest : public ReportTest {
  protected:
    // What a tool that reads PDF files says of the document.
    std::string Read(const std::string& bytes, const std::string& tool,
                     const std::string& options) {
        std::ofstream(folder.Path("report.pdf"), std::ios::binary) << bytes;
        const std::string out = folder.Path("out.txt");
        const std::string to = tool == "pdftotext" ? " " + out : " > " + out;
        const std::string command = tool + " " + options + " " + folder.Path("report.pdf") + to;
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        std::ifstream file(out, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TemporaryFolder folder;
};

TEST_F(PdfTest, HasATitleAndEveryPageInItsSize) {
    Load("Dry Cow");
    const auto document = Make();
    const std::string info = Read(PdfOf(*document), "pdfinfo", "-l 99");
    EXPECT_NE(info.find("TAV Dairy Cattle Program - Report"), std::string::npos) << info;
    int landscape = 0;
    for (std::size_t at = info.find("792 x 612"); at != std::string::npos;
         at = info.find("792 x 612", at + 1))
        ++landscape;
    EXPECT_EQ(landscape, std::count_if(document->Pages.begin(), document->Pages.end(),
                                       [](const ReportPage& p) { return p.Orientation == 1; }));
    EXPECT_GT(landscape, 0);
}

TEST_F(PdfTest, TextCanBeSelectedWhateverItsScript) {
    SimulationRecord& r = Load("Dry Cow");
    r.Feeds[0].Name = "Heno de alfalfa \xC3\xB1";
    r.Feeds[1].Name = "\xE7\x8E\x89\xE7\xB1\xB3";                          // maize
    r.Feeds[2].Name = "\xD0\xAF\xD1\x87\xD0\xBC\xD0\xB5\xD0\xBD\xD1\x8C";  // barley
    const std::string text =
        Read(PdfOf(*Make({"Summary Report"})), "pdftotext", "-layout -enc UTF-8");
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NE(text.find(r.Feeds[i].Name), std::string::npos) << text;
    EXPECT_NE(text.find("Diet Nutrient Balances"), std::string::npos);
}

TEST_F(PdfTest, FontsAreEmbedded) {
    Load("Young Calf");
    const std::string fonts = Read(PdfOf(*Make()), "pdffonts", "");
    EXPECT_NE(fonts.find("LiberationSerif"), std::string::npos) << fonts;
    EXPECT_EQ(fonts.find(" no  yes"), std::string::npos) << fonts;
}

TEST_F(PdfTest, TheSameDocumentGivesTheSameBytes) {
    Load("Young Calf");
    const auto document = Make();
    const std::string first = PdfOf(*document);
    EXPECT_EQ(first, PdfOf(*document));
    EXPECT_EQ(first.find("CreationDate"), std::string::npos);
}

}  // namespace
}  // namespace tav
