#include "sdb/sdbResourceHandler.h"

#include "kit/kitTempFolder.h"
#include "vmr/coResourceIterator.h"
#include "vmr/coResourceTableMaker.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"

#include <gtest/gtest.h>

namespace {

void register_resources()
{
    std::vector<vmrResourceDeclaration> declarations(5);
    declarations[0].name = "hdlHeal";
    declarations[0].kind = vmrResourceKind::boolean;
    declarations[0].default_value = "true";
    declarations[1].name = "hdlLevel";
    declarations[1].kind = vmrResourceKind::integer;
    declarations[1].default_value = "3";
    declarations[1].minimum = 1;
    declarations[1].maximum = 10;
    declarations[2].name = "hdlGap";
    declarations[2].kind = vmrResourceKind::real;
    declarations[2].default_value = "0.5";
    declarations[2].minimum = 0;
    declarations[3].name = "hdlAuthor";
    declarations[4].name = "hdlSchema";
    declarations[4].kind = vmrResourceKind::choice;
    declarations[4].default_value = "AP214";
    declarations[4].choices = {"AP203", "AP214"};
    vmr_register_resources(declarations);
}

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
    void SetUp() override { register_resources(); }

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
    EXPECT_TRUE(handler("hdlHeal").validate("TRUE"));
    EXPECT_FALSE(handler("hdlHeal").validate("perhaps"));
    EXPECT_TRUE(handler("hdlLevel").validate("7"));
    EXPECT_FALSE(handler("hdlLevel").validate("7a"));
    EXPECT_TRUE(handler("hdlSchema").validate("AP203"));
    EXPECT_FALSE(handler("hdlSchema").validate("AP242"));
    EXPECT_TRUE(handler("hdlAuthor").validate("anyone, really"));
}

TEST_F(ResourceHandler, ValidatesRangesAsWell)
{
    EXPECT_TRUE(handler("hdlLevel").validate("10"));
    EXPECT_FALSE(handler("hdlLevel").validate("11"));
    EXPECT_FALSE(handler("hdlLevel").validate("0"));
    EXPECT_FALSE(handler("hdlGap").validate("-0,1"));
}

TEST_F(ResourceHandler, HoldsNothingLegalForAResourceThatIsNotRegistered)
{
    EXPECT_FALSE(handler("unheard").validate("1"));
    EXPECT_EQ(handler("unheard").insert("1", m_instance), 0);
    EXPECT_FALSE(m_instance.modified());
}

TEST_F(ResourceHandler, AsksTheValidatorAboutNumbersByTheNameOfTheResource)
{
    EXPECT_TRUE(handler("hdlGap").validate("0,5"));
    EXPECT_EQ(m_validator.m_asked, "hdlGap");
    EXPECT_TRUE(handler("hdlLevel").validate("5"));
    EXPECT_EQ(m_validator.m_asked, "hdlLevel");
}

TEST_F(ResourceHandler, TakesNoNumberThatTheValidatorRefuses)
{
    Refusing refusing;
    EXPECT_FALSE(sdbResourceHandler(&refusing, "hdlLevel").validate("5"));
    EXPECT_FALSE(sdbResourceHandler(&refusing, "hdlGap").validate("0.5"));
    EXPECT_EQ(sdbResourceHandler(&refusing, "hdlGap").insert("0.5", m_instance), 0);
    EXPECT_TRUE(sdbResourceHandler(&refusing, "hdlAuthor").validate("5"));
    EXPECT_TRUE(sdbResourceHandler(&refusing, "hdlHeal").validate("true"));
}

TEST_F(ResourceHandler, TakesNeutralNumbersWithoutAValidator)
{
    EXPECT_TRUE(sdbResourceHandler(nullptr, "hdlGap").validate("0.5"));
    EXPECT_FALSE(sdbResourceHandler(nullptr, "hdlGap").validate("0,5"));
    EXPECT_TRUE(sdbResourceHandler(nullptr, "hdlLevel").validate("5"));
    EXPECT_FALSE(sdbResourceHandler(nullptr, "hdlLevel").validate("5a"));
}

TEST_F(ResourceHandler, StoresANumberOfTheUsersLocaleInTheNeutralForm)
{
    EXPECT_NE(handler("hdlGap").insert("0,010", m_instance), 0);
    EXPECT_EQ(stored("hdlGap"), utString("0.01"));
    EXPECT_NE(handler("hdlGap").insert("0.02", m_instance), 0);
    EXPECT_EQ(stored("hdlGap"), utString("0.02"));
}

TEST_F(ResourceHandler, TakesNoTextThatOnlyLooksLikeANumber)
{
    EXPECT_FALSE(handler("hdlGap").validate("1,2,3"));
    EXPECT_EQ(handler("hdlGap").insert("1,2,3", m_instance), 0);
    EXPECT_FALSE(handler("hdlLevel").validate("--"));
}

TEST_F(ResourceHandler, StoresNothingThatIsNotLegal)
{
    EXPECT_EQ(handler("hdlLevel").insert("11", m_instance), 0);
    EXPECT_EQ(handler("hdlHeal").insert("", m_instance), 0);
    EXPECT_EQ(handler("hdlSchema").insert("AP242", m_instance), 0);
    EXPECT_FALSE(m_instance.modified());
}

TEST_F(ResourceHandler, DisplaysWhatInsertReadsBackToTheSameValue)
{
    for (auto const & [name, text] :
         {std::pair("hdlHeal", "fALSE"), std::pair("hdlLevel", "+07"), std::pair("hdlGap", "1e-3"),
          std::pair("hdlGap", "1234567,5"), std::pair("hdlAuthor", "  a \\ b\n"),
          std::pair("hdlSchema", "ap203")}) {
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
    handler("hdlHeal").insert("false", m_instance);
    EXPECT_EQ(stored("hdlHeal"), utString("false"));
    EXPECT_EQ(displayed("hdlHeal"), utString("False"));
    handler("hdlHeal").insert("True", m_instance);
    EXPECT_EQ(displayed("hdlHeal"), utString("True"));
}

TEST_F(ResourceHandler, DisplaysAsItStandsWhatItCannotRead)
{
    m_instance.table()->set_value("hdlLevel", "many");
    m_instance.table()->set_value("unheard", " x ");
    EXPECT_EQ(displayed("hdlLevel"), utString("many"));
    EXPECT_EQ(displayed("unheard"), utString(" x "));
    EXPECT_TRUE(handler("hdlLevel").display(nullptr).invalid());
}

TEST_F(ResourceHandler, CopiesAResourceAsItStands)
{
    coResourceTable source;
    source.set_value("hdlLevel", "many");
    coResourceIterator it(&source);
    ASSERT_NE(++it, 0);
    handler("hdlLevel").add_resource(it(), m_instance);
    EXPECT_EQ(stored("hdlLevel"), utString("many"));
    handler("hdlLevel").add_resource(nullptr, m_instance);
    EXPECT_EQ(m_instance.table()->count(), 1);
}

TEST_F(ResourceHandler, KeepsTheValuesOfAnUnloadedTranslatorWhenTheFileIsSavedAnew)
{
    auto const file = m_directory.write("x.rsc", "unheard = old\nhdlLevel = 4\n");
    vmrTableInstance scratch(file.c_str());
    EXPECT_FALSE(handler("unheard").validate("new"));
    EXPECT_NE(handler("unheard").insert("new", scratch), 0);
    EXPECT_NE(handler("hdlLevel").insert("5", scratch), 0);
    ASSERT_NE(vmr_resource_save(file, scratch.table()), 0);
    vmrTableInstance const loaded(file.c_str());
    EXPECT_EQ(loaded.effective_value("unheard"), utString("new"));
    EXPECT_EQ(loaded.effective_value("hdlLevel"), utString("5"));
}

TEST_F(ResourceHandler, AgreesWithAMergeOfWhatItDisplays)
{
    handler("hdlHeal").insert("false", m_instance);
    handler("hdlGap").insert("0,25", m_instance);
    coResourceTable merged;
    for (auto const name : {"hdlHeal", "hdlGap"})
        EXPECT_EQ(coResourceTableMaker::merge_entry(name, displayed(name), merged), coResourceOk);
    EXPECT_EQ(merged.value("hdlHeal"), stored("hdlHeal"));
    EXPECT_EQ(merged.value("hdlGap"), stored("hdlGap"));
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
    handler("hdlLevel").insert("7", m_instance);
    coResourceKeyBase const key("hdlLevel");
    Loud loud(&m_validator, "hdlLevel");
    sdbResourceHandler & base = loud;
    EXPECT_EQ(base.display(m_instance.table()->lookup_resource(&key)), utString("7!"));
}
