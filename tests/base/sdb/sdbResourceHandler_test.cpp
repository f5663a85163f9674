#include "sdb/sdbResourceHandler.h"

#include "base/vmr/vmrTestResources.h"
#include "kit/kitTempFolder.h"
#include "vmr/coResourceIterator.h"
#include "vmr/coResourceTableMaker.h"
#include "vmr/vmrResourceFile.h"

#include <gtest/gtest.h>

namespace {

/// Judges as a locale with a decimal comma does that also takes the point.
class CommaLocale : public sdbValidator {
public:
    bool validate_int(utString const & name, utString const & value) override
    {
        m_asked = name.str();
        return !value.empty() && value.view().find_first_not_of("+-0123456789") == std::string_view::npos;
    }
    bool validate_double(utString const & name, utString const & value) override
    {
        m_asked = name.str();
        return !value.empty() && value.view().find_first_not_of("+-0123456789.,e") == std::string_view::npos;
    }

    std::string m_asked;
};

class Refusing : public sdbValidator {
public:
    bool validate_int(utString const &, utString const &) override { return false; }
    bool validate_double(utString const &, utString const &) override { return false; }
};

} // namespace

class ResourceHandler : public testing::Test {
protected:
    void SetUp() override { register_test_resources(); }

    sdbResourceHandler handler(char const * name) { return sdbResourceHandler(&m_validator, name); }

    utString stored(char const * name) const { return m_instance.table()->value(name); }
    utString displayed(char const * name)
    {
        coResourceKeyBase const key(name);
        return handler(name).display(m_instance.table()->lookup_resource(&key));
    }

    CommaLocale m_validator;
    kitTempFolder m_directory;
    vmrTableInstance m_instance{(m_directory / "none.rsc").c_str()};
};

TEST_F(ResourceHandler, ValidatesByTheTypeOfTheResource)
{
    EXPECT_TRUE(handler("tstHeal").validate("TRUE"));
    EXPECT_FALSE(handler("tstHeal").validate("perhaps"));
    EXPECT_TRUE(handler("tstLevel").validate("7"));
    EXPECT_FALSE(handler("tstLevel").validate("7a"));
    EXPECT_TRUE(handler("tstSchema").validate("AP203"));
    EXPECT_FALSE(handler("tstSchema").validate("AP999"));
    EXPECT_TRUE(handler("tstAuthor").validate("anyone, really"));
}

TEST_F(ResourceHandler, ValidatesRangesAsWell)
{
    EXPECT_TRUE(handler("tstLevel").validate("10"));
    EXPECT_FALSE(handler("tstLevel").validate("11"));
    EXPECT_FALSE(handler("tstLevel").validate("0"));
    EXPECT_FALSE(handler("tstGap").validate("-0,1"));
}

TEST_F(ResourceHandler, HoldsNothingLegalForAResourceThatIsNotRegistered)
{
    EXPECT_FALSE(handler("unheard").validate("1"));
    EXPECT_EQ(handler("unheard").insert("1", m_instance), 0);
    EXPECT_FALSE(m_instance.modified());
}

TEST_F(ResourceHandler, AsksTheValidatorAboutNumbersByTheNameOfTheResource)
{
    EXPECT_TRUE(handler("tstGap").validate("0,5"));
    EXPECT_EQ(m_validator.m_asked, "tstGap");
    EXPECT_TRUE(handler("tstLevel").validate("5"));
    EXPECT_EQ(m_validator.m_asked, "tstLevel");
}

TEST_F(ResourceHandler, TakesNoNumberThatTheValidatorRefuses)
{
    Refusing refusing;
    EXPECT_FALSE(sdbResourceHandler(&refusing, "tstLevel").validate("5"));
    EXPECT_FALSE(sdbResourceHandler(&refusing, "tstGap").validate("0.5"));
    EXPECT_EQ(sdbResourceHandler(&refusing, "tstGap").insert("0.5", m_instance), 0);
    EXPECT_TRUE(sdbResourceHandler(&refusing, "tstAuthor").validate("5"));
    EXPECT_TRUE(sdbResourceHandler(&refusing, "tstHeal").validate("true"));
}

TEST_F(ResourceHandler, TakesNeutralNumbersWithoutAValidator)
{
    EXPECT_TRUE(sdbResourceHandler(nullptr, "tstGap").validate("0.5"));
    EXPECT_FALSE(sdbResourceHandler(nullptr, "tstGap").validate("0,5"));
    EXPECT_TRUE(sdbResourceHandler(nullptr, "tstLevel").validate("5"));
    EXPECT_FALSE(sdbResourceHandler(nullptr, "tstLevel").validate("5a"));
}

TEST_F(ResourceHandler, StoresANumberOfTheUsersLocaleInTheNeutralForm)
{
    EXPECT_NE(handler("tstGap").insert("0,010", m_instance), 0);
    EXPECT_EQ(stored("tstGap"), utString("0.01"));
    EXPECT_NE(handler("tstGap").insert("0.02", m_instance), 0);
    EXPECT_EQ(stored("tstGap"), utString("0.02"));
}

TEST_F(ResourceHandler, TakesNoTextThatOnlyLooksLikeANumber)
{
    EXPECT_FALSE(handler("tstGap").validate("1,2,3"));
    EXPECT_EQ(handler("tstGap").insert("1,2,3", m_instance), 0);
    EXPECT_FALSE(handler("tstLevel").validate("--"));
}

TEST_F(ResourceHandler, StoresNothingThatIsNotLegal)
{
    EXPECT_EQ(handler("tstLevel").insert("11", m_instance), 0);
    EXPECT_EQ(handler("tstHeal").insert("", m_instance), 0);
    EXPECT_EQ(handler("tstSchema").insert("AP999", m_instance), 0);
    EXPECT_FALSE(m_instance.modified());
}

TEST_F(ResourceHandler, DisplaysWhatInsertReadsBackToTheSameValue)
{
    for (auto const & [name, text] :
         {std::pair("tstHeal", "fALSE"), std::pair("tstLevel", "+07"), std::pair("tstGap", "1e-3"),
          std::pair("tstGap", "1234567,5"), std::pair("tstAuthor", "  a \\ b\n"),
          std::pair("tstSchema", "ap203")}) {
        ASSERT_NE(handler(name).insert(text, m_instance), 0) << name;
        auto const value = stored(name);
        auto const shown = displayed(name);
        EXPECT_TRUE(handler(name).validate(shown)) << name;
        ASSERT_NE(handler(name).insert(shown, m_instance), 0) << name;
        EXPECT_EQ(stored(name), value) << name;
        EXPECT_EQ(displayed(name), shown) << name;
    }
}

TEST_F(ResourceHandler, DisplaysBooleansInTheFormThatCheckBoxesRecord)
{
    handler("tstHeal").insert("false", m_instance);
    EXPECT_EQ(stored("tstHeal"), utString("false"));
    EXPECT_EQ(displayed("tstHeal"), utString("False"));
    handler("tstHeal").insert("True", m_instance);
    EXPECT_EQ(displayed("tstHeal"), utString("True"));
}

TEST_F(ResourceHandler, DisplaysAsItStandsWhatItCannotRead)
{
    m_instance.table()->set_value("tstLevel", "many");
    m_instance.table()->set_value("unheard", " x ");
    EXPECT_EQ(displayed("tstLevel"), utString("many"));
    EXPECT_EQ(displayed("unheard"), utString(" x "));
    EXPECT_TRUE(handler("tstLevel").display(nullptr).invalid());
}

TEST_F(ResourceHandler, CopiesAResourceAsItStands)
{
    coResourceTable source;
    source.set_value("tstLevel", "many");
    coResourceIterator it(&source);
    ASSERT_NE(++it, 0);
    handler("tstLevel").add_resource(it(), m_instance);
    EXPECT_EQ(stored("tstLevel"), utString("many"));
    handler("tstLevel").add_resource(nullptr, m_instance);
    EXPECT_EQ(m_instance.table()->count(), 1);
}

TEST_F(ResourceHandler, KeepsTheValuesOfAnUnloadedTranslatorWhenTheFileIsSavedAnew)
{
    auto const file = m_directory.write("x.rsc", "unheard = old\ntstLevel = 4\n");
    vmrTableInstance scratch(file.c_str());
    EXPECT_FALSE(handler("unheard").validate("new"));
    EXPECT_NE(handler("unheard").insert("new", scratch), 0);
    EXPECT_NE(handler("tstLevel").insert("5", scratch), 0);
    ASSERT_NE(vmr_resource_save(file, scratch.table()), 0);
    vmrTableInstance const loaded(file.c_str());
    EXPECT_EQ(loaded.effective_value("unheard"), utString("new"));
    EXPECT_EQ(loaded.effective_value("tstLevel"), utString("5"));
}

TEST_F(ResourceHandler, AgreesWithAMergeOfWhatItDisplays)
{
    handler("tstHeal").insert("false", m_instance);
    handler("tstGap").insert("0,25", m_instance);
    coResourceTable merged;
    for (auto const name : {"tstHeal", "tstGap"})
        EXPECT_EQ(coResourceTableMaker::merge_entry(name, displayed(name), merged), coResourceOk);
    EXPECT_EQ(merged.value("tstHeal"), stored("tstHeal"));
    EXPECT_EQ(merged.value("tstGap"), stored("tstGap"));
}

TEST_F(ResourceHandler, CanBeGivenOperationsOfItsOwnByASubclass)
{
    class Loud : public sdbResourceHandler {
    public:
        using sdbResourceHandler::sdbResourceHandler;
        utString display(coResourceBase const * resource) override
        {
            return sdbResourceHandler::display(resource) + "!";
        }
    };
    handler("tstLevel").insert("7", m_instance);
    coResourceKeyBase const key("tstLevel");
    Loud loud(&m_validator, "tstLevel");
    sdbResourceHandler & base = loud;
    EXPECT_EQ(base.display(m_instance.table()->lookup_resource(&key)), utString("7!"));
}
