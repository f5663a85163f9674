#include "windows/resources/kitOptions.h"

#include "sglResourceEditWidget.h"

#include <wx/stattext.h>

namespace {

/// The builder over real pages.
struct Builder : kitOptionsTest {
    void SetUp() override
    {
        kitOptionsTest::SetUp();
        load(table, "vmrTolTriangulate3d = 0.5\nvmrOptProcessSurfaces = true\n");
        m_shipped = app().application_information()->schema_path("resources");
        set_layout_path(folder() / "layout");
    }
    void TearDown() override
    {
        set_layout_path(m_shipped.str());
        kitOptionsTest::TearDown();
    }
    static void set_layout_path(std::string const & path)
    {
        auto const * const information = app().application_information();
        const_cast<vmrabsAppInfo *>(information)->set_schema_path("resources", utString(path));
    }
    void write(std::string const & text) { folder().write("layout/resource_layout.txt", text); }

    static std::string page(std::string const & name, std::string const & content)
    {
        return "start_page\nstart_attributes\ntype both\nname d.p::" + name + "\nend_attributes\n" + content +
               "end_page\n";
    }
    static std::string row(std::string const & name, std::string const & label, std::string const & type)
    {
        return "start_resource\nstart_attributes\nname " + name + "\nshort_description d.l::" + label +
               "\nlong_description d.t::tip\ntype " + type + "\nend_attributes\nend_resource\n";
    }
    template <class T>
    std::vector<T *> all(wxWindow const & parent)
    {
        std::vector<T *> found;
        for (auto * const child : parent.GetChildren())
            if (auto * const one = dynamic_cast<T *>(child))
                found.push_back(one);
        return found;
    }
    wxPoint units(int x, int y) { return panel().ConvertDialogToPixels(wxPoint(x, y)); }

    std::string shipped() const { return m_shipped.str(); }

    vmrTableInstance table;

private:
    utString m_shipped;
};

} // namespace

TEST_F(Builder, MakesPagesWithTheirControls)
{
    write(page("One", row("vmrTolTriangulate3d", "Deviation", "infinite") +
                          row("vmrOptProcessSurfaces", "Surfaces", "boolean") + page("Inner", "")));
    sglResourceDialogBuilder builder(nullptr, &panel(), &table);
    ASSERT_TRUE(builder.build_dialog(sglResourceDialogBuilder::input));
    ASSERT_TRUE(builder.initialise(&table));
    EXPECT_EQ(builder.dialog(), &panel());
    initialise();
    panel().Refresh();
    settle();

    auto const pages = all<sglResourceOptionsPage>(panel());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0]->name(), utString("One"));
    EXPECT_EQ(pages[1]->parent(), pages[0]);
    auto const fields = all<wxTextCtrl>(*pages[0]);
    auto const boxes = all<wxCheckBox>(*pages[0]);
    ASSERT_EQ(fields.size(), 1U);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(fields[0]->GetValue(), "0.5");
    EXPECT_TRUE(boxes[0]->IsChecked());
    wxRect const expected(units(10, 5), units(265, 17));
    EXPECT_EQ(fields[0]->GetRect(), wxRect(expected.GetRight() - 70, expected.y, 70, expected.height - 1));
}

TEST_F(Builder, LabelThatWrapsMovesEveryLaterRowDown)
{
    auto const y_of_second = [this](std::string const & label) {
        write(page("One", row("vmrTolTriangulate3d", label, "infinite") +
                              row("vmrOptProcessSurfaces", "S", "boolean")));
        auto * const fresh = new kitOptionsPanel(panel().GetParent());
        sglResourceDialogBuilder builder(nullptr, fresh, &table);
        EXPECT_TRUE(builder.build_dialog(sglResourceDialogBuilder::input));
        return all<wxCheckBox>(*all<sglResourceOptionsPage>(*fresh).at(0)).at(0)->GetPosition().y;
    };
    int const plain = y_of_second("Short");
    std::string long_label = "Word";
    for (int i = 0; i < 40; ++i)
        long_label += " and word";
    int const height = wxRect(units(10, 5), units(265, 17)).height;
    int const wrapped = y_of_second(long_label);
    EXPECT_EQ(wrapped,
              panel()
                  .ConvertDialogToPixels(wxPoint(
                      0, panel().ConvertPixelsToDialog(wxPoint(0, units(0, 5).y + 2 * height - 1)).y + 8))
                  .y);
    EXPECT_GT(wrapped, plain);
}

TEST_F(Builder, TellsOfALayoutThatItCannotRead)
{
    write("start_page\n");
    sglResourceDialogBuilder builder(nullptr, &panel(), &table);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    EXPECT_FALSE(builder.build_dialog(sglResourceDialogBuilder::input));
    EXPECT_EQ(boxes.said(), std::vector<std::string>{"Error : Unable to read resource layout file " +
                                                     (folder() / "layout/resource_layout.txt") +
                                                     " near line 1.\nPlease check your installation"});
}

TEST_F(Builder, InitialisesNoPages)
{
    sglResourceDialogBuilder builder(nullptr, &panel(), &table);
    EXPECT_EQ(builder.initialise(&table), 1);
}

TEST_F(Builder, ShippedPagesFitTheirPlaceAndNoRowNeedsTwoLines)
{
    set_layout_path(shipped());
    int built = 0;
    for (auto const & format : app().output_dlls().translators()) {
        sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
        format->load(status); // makes its resources known
        std::string const file = VMR_BUILD_TREE "/share/vmr/resources/" + format->resource_file_name().utf8();
        for (unsigned int const side : {sglResourceDialogBuilder::input, sglResourceDialogBuilder::output}) {
            vmrTableInstance factory(file.c_str());
            auto * const fresh = new kitOptionsPanel(panel().GetParent());
            sglResourceDialogBuilder builder(nullptr, fresh, &factory);
            ASSERT_TRUE(builder.build_dialog(side)) << file;
            builder.initialise(&factory);
            initialise(*fresh);
            for (auto const * const page : all<sglResourceOptionsPage>(*fresh)) {
                ++built;
                for (auto const * const child : page->GetChildren()) {
                    EXPECT_TRUE(wxRect(page->GetSize()).Contains(child->GetRect()))
                        << page->name().str() << ": " << child->GetLabel();
                    EXPECT_EQ(child->GetLabel().Find('\n'), wxNOT_FOUND) << child->GetLabel();
                }
            }
            fresh->Destroy();
        }
    }
    EXPECT_GE(built, 30);
}
