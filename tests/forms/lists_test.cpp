#include "forms/sample_form.h"

namespace tav {
namespace {

class ListForm : public SampleForm {
  public:
    ListForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        for (const char* const breed : {"Ayrshire", "Guernsey", "Jersey"}) {
            lstBreed.AddItem(breed);
            lstMarks.AddItem(breed);
            cboBreed.AddItem(breed);
        }
        lstMarks.MultiSelect = true;
        lstBreed.Click = [this] { Events.push_back("chose " + lstBreed.Text()); };
        lstMarks.Click = [this] {
            Events.push_back((lstMarks.Selected(lstMarks.ListIndex()) ? "marked " : "unmarked ") +
                             lstMarks.Text());
        };
        cboBreed.Change = [this] { Events.push_back("changed to " + cboBreed.Text()); };
    }
    ListBox lstBreed{*this, "lstBreed"};
    ListBox lstMarks{*this, "lstMarks"};
    ComboBox cboBreed{*this, "cboBreed"};
};

class ListsTest : public FormsTest {
  protected:
    ListForm& Form = Open<ListForm>();
};

TEST_F(ListsTest, ProgramRaisesClickOnlyWithAnotherIndex) {
    Form.lstBreed.SetListIndex(1);
    Form.lstBreed.SetListIndex(1);
    Form.lstBreed.SetListIndex(-1);
    EXPECT_EQ(Events, (EventLog{"chose Guernsey", "chose "}));
    EXPECT_THROW(Form.lstBreed.SetListIndex(3), RuntimeError);
}

TEST_F(ListsTest, UserRaisesClickEachTime) {
    Form.lstBreed.UserChoose(2);
    Form.lstBreed.UserChoose(2);
    EXPECT_EQ(Events, (EventLog{"chose Jersey", "chose Jersey"}));
    EXPECT_THROW(Form.lstBreed.UserChoose(3), NotPossible);
    EXPECT_THROW(Form.lstMarks.UserChoose(0), NotPossible);
    EXPECT_THROW(Form.lstBreed.UserMark(0, true), NotPossible);
}

TEST_F(ListsTest, RemovingEntriesMovesTheIndexWithItsEntry) {
    Form.lstBreed.SetListIndex(1);
    Form.lstBreed.RemoveItem(0);
    EXPECT_EQ(Form.lstBreed.Text(), "Guernsey");
    Form.lstBreed.RemoveItem(0);
    EXPECT_EQ(Form.lstBreed.ListIndex(), -1);
    Form.lstBreed.Clear();
    EXPECT_THROW(Form.lstBreed.RemoveItem(0), RuntimeError);
    EXPECT_EQ(Events.size(), 1u);
}

TEST_F(ListsTest, MarksComeAndGoOneClickEach) {
    Form.lstMarks.UserMark(0, true);
    Form.lstMarks.UserMark(2, true);
    Form.lstMarks.UserMark(2, true);  // nothing to do
    Form.lstMarks.UserMark(0, false);
    EXPECT_EQ(Events, (EventLog{"marked Ayrshire", "marked Jersey", "unmarked Ayrshire"}));
    Form.lstMarks.SetSelected(1, true);
    EXPECT_EQ(Events.size(), 3u);
    Form.lstMarks.RemoveItem(0);
    EXPECT_TRUE(Form.lstMarks.Selected(0) && Form.lstMarks.Selected(1));
}

TEST_F(ListsTest, ComboBoxShowsAnyTextOfTheProgram) {
    Form.cboBreed.SetText("Jersey");
    EXPECT_EQ(Form.cboBreed.ListIndex(), 2);
    Form.cboBreed.SetText("N/A");
    EXPECT_EQ(Form.cboBreed.ListIndex(), -1);
    EXPECT_EQ(Form.cboBreed.Text(), "N/A");
    EXPECT_TRUE(Events.empty());
}

TEST_F(ListsTest, ComboBoxTakesFreeTextOnlyIfItIsOne) {
    Form.cboBreed.UserChoose(0);
    EXPECT_THROW(Form.cboBreed.UserType("Zebu"), NotPossible);
    Form.cboBreed.FreeText = true;
    Form.cboBreed.UserType("Zebu");
    EXPECT_EQ(Events, (EventLog{"changed to Ayrshire", "changed to Zebu"}));
    EXPECT_THROW(Form.cboBreed.UserType("two\nlines"), NotPossible);
}

}  // namespace
}  // namespace tav
