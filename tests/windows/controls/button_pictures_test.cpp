#include "controls/sglButtonPictures.h"

#include "sglBatchFiles.h"
#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "windows/kit/kitWindowTest.h"

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

/// Takes a picture out of the installation for the time of a test.
class WithoutPicture {
public:
    explicit WithoutPicture(std::string const & name)
        : m_file(std::string(VMR_BUILD_TREE "/share/vmr/xrc/") + name)
    {
        fs::rename(m_file, kept());
    }
    ~WithoutPicture() { fs::rename(kept(), m_file); }
    WithoutPicture(WithoutPicture const &) = delete;
    WithoutPicture & operator=(WithoutPicture const &) = delete;

    void put(std::string const & content) const { std::ofstream(m_file, std::ios::binary) << content; }

private:
    fs::path kept() const { return m_file.string() + ".kept"; }
    fs::path m_file;
};

class ButtonPictures : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
    }
    wxButton * button(char const * id) { return new wxButton(m_frame, XRCID(id), "&Text"); }

    wxFrame * m_frame = nullptr;
};

void each_button(wxWindow & window, std::vector<wxButton *> & all)
{
    for (wxWindow * const child : window.GetChildren()) {
        if (auto * const button = dynamic_cast<wxButton *>(child))
            all.push_back(button);
        each_button(*child, all);
    }
}

template <class Page>
class ButtonPicturesOf : public ButtonPictures {
};
using Pages = testing::Types<sglSingleFile, sglMergeFiles, sglBatchFiles>;
TYPED_TEST_SUITE(ButtonPicturesOf, Pages);

} // namespace

TYPED_TEST(ButtonPicturesOf, AreOnEachButtonOfAPageBesideItsText)
{
    auto * const page = new TypeParam(this->m_frame);
    ASSERT_TRUE(page->create());
    std::vector<wxButton *> buttons;
    each_button(*page, buttons);
    EXPECT_GE(buttons.size(), 5u);
    for (auto const * const button : buttons) {
        EXPECT_TRUE(button->GetBitmap().IsOk()) << button->GetLabel();
        EXPECT_FALSE(button->GetLabelText().empty());
    }
}

TEST_F(ButtonPictures, AreForTheButtonsThatAreNamed)
{
    auto * const known = button("IDC_BATCH_ADD_BUTTON");
    auto * const other = button("KIT_OTHER");
    sgl_add_button_pictures(*m_frame);
    EXPECT_TRUE(known->GetBitmap().IsOk());
    EXPECT_EQ(known->GetLabel(), "&Text");
    EXPECT_FALSE(other->GetBitmap().IsOk());
}

TEST_F(ButtonPictures, GrowWithTheLetters)
{
    auto * const usual = button("IDC_BATCH_ADD_BUTTON");
    sgl_add_button_pictures(*m_frame);
    EXPECT_EQ(usual->GetBitmap().GetHeight(), 16);

    m_frame->SetFont(m_frame->GetFont().Scaled(2));
    auto * const large = button("IDC_BATCH_REMOVE_BUTTON");
    sgl_add_button_pictures(*m_frame);
    EXPECT_EQ(large->GetBitmap().GetHeight(), 24);
}

TEST_F(ButtonPictures, ThatAreMissingOrDamagedLeaveTheTextAlone)
{
    WithoutPicture const installation("button-add-16.png");
    auto * const missing = button("IDC_BATCH_ADD_BUTTON");
    sgl_add_button_pictures(*m_frame);
    EXPECT_FALSE(missing->GetBitmap().IsOk());
    EXPECT_EQ(missing->GetLabel(), "&Text");

    installation.put("\x89PNG and no more");
    auto * const damaged = button("IDC_MULTIPLE_ADD");
    sgl_add_button_pictures(*m_frame);
    EXPECT_FALSE(damaged->GetBitmap().IsOk());
    EXPECT_EQ(damaged->GetLabel(), "&Text");
}
