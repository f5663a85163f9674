#include "xml/xxmDocumentFactory.h"

#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"

namespace {

class XmlDocument : public testing::Test {
protected:
    std::unique_ptr<axmDocument> load(char const * xml) { return factory.load_text(xml, error); }

    std::string value(axmDocument const & document, char const * path)
    {
        utString found;
        return document.value(path, found) ? found.str() : "not found";
    }

    kitTempFolder folder;
    xxmDocumentFactory factory;
    utString error;
};

} // namespace

TEST_F(XmlDocument, IsMadeWithARootElement)
{
    auto const document = factory.make_document("report");
    ASSERT_NE(document, nullptr);
    EXPECT_NE(document->text().locate_substring("<report"), -1);
    EXPECT_EQ(factory.make_document(""), nullptr);
    EXPECT_EQ(factory.make_document("two words"), nullptr);
    EXPECT_EQ(factory.make_document("<x>"), nullptr);
    EXPECT_EQ(factory.make_document("1st"), nullptr);
}

TEST_F(XmlDocument, ChangesValues)
{
    auto const document = load("<a><b c='1'>old</b><b>other</b></a>");
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->set_value("/a/b", "n<w"), 1);
    EXPECT_EQ(document->set_value("/a/b/@c", "2\"3"), 1);
    EXPECT_EQ(value(*document, "/a/b[1]"), "n<w");
    EXPECT_EQ(value(*document, "/a/b/@c"), "2\"3");
    EXPECT_EQ(value(*document, "/a/b[2]"), "other");
    EXPECT_EQ(document->set_value("/a/missing", "x"), 0);
    EXPECT_EQ(document->set_value("///", "x"), 0);
}

TEST_F(XmlDocument, Grows)
{
    auto const document = factory.make_document("report");
    EXPECT_EQ(document->add_element("/report", "file", "a.stp"), 1);
    EXPECT_EQ(document->add_element("/report", "file", ""), 1);
    EXPECT_EQ(document->set_attribute("/report/file[2]", "state", "failed"), 1);
    EXPECT_EQ(document->set_attribute("/report/file[2]", "state", "done"), 1);
    EXPECT_EQ(value(*document, "count(//file)"), "2");
    EXPECT_EQ(value(*document, "//file[1]"), "a.stp");
    EXPECT_EQ(value(*document, "//file[2]/@state"), "done");
    EXPECT_EQ(document->add_element("/report", "bad name", ""), 0);
    EXPECT_EQ(document->add_element("/missing", "file", ""), 0);
    EXPECT_EQ(document->set_attribute("/missing", "state", ""), 0);
    EXPECT_EQ(document->set_attribute("/report", "", ""), 0);
}

TEST_F(XmlDocument, ComesBackFromAFileAsItWasSaved)
{
    auto const document = load("<a><b>Größe</b></a>");
    auto const file = apPathName::from_utf8(folder / "a.xml");
    ASSERT_EQ(document->save(file, error), 1) << error.view();
    auto const again = factory.load_file(file, error);
    ASSERT_NE(again, nullptr) << error.view();
    EXPECT_EQ(value(*again, "/a/b"), "Größe");
    EXPECT_EQ(again->text(), document->text());
}

TEST_F(XmlDocument, ReplacesAFileWholeAndLeavesNothingElse)
{
    auto const name = folder.write("a.xml", "<old/>");
    auto const document = factory.make_document("new");
    ASSERT_EQ(document->save(apPathName::from_utf8(name), error), 1);
    EXPECT_EQ(kit_read_file(name).find("<old"), std::string::npos);
    auto const entries = std::filesystem::directory_iterator(folder.path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST_F(XmlDocument, TellsWhyItCannotBeSaved)
{
    auto const document = factory.make_document("a");
    EXPECT_EQ(document->save(apPathName::from_utf8(folder / "missing/a.xml"), error), 0);
    EXPECT_NE(error.locate_substring("missing/a.xml: "), -1);
}

TEST_F(XmlDocument, TellsWhyItCannotBeLoaded)
{
    EXPECT_EQ(factory.load_file(apPathName::from_utf8(folder / "missing.xml"), error), nullptr);
    EXPECT_NE(error.locate_substring("missing.xml: "), -1);
    auto const broken = folder.write("broken.xml", "<a>\n<b>");
    EXPECT_EQ(factory.load_file(apPathName::from_utf8(broken), error), nullptr);
    EXPECT_NE(error.locate_substring("broken.xml: line 2: "), -1) << error.view();
    EXPECT_EQ(load("<a"), nullptr);
}
