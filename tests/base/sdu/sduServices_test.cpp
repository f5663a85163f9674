#include "sdu/sduServices.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

struct Reader {
    int number = 1;
};

struct Writer {};

} // namespace

TEST(Services, FindWhatWasAdded)
{
    Reader reader;
    sduServices services;
    services.add_service(sduServiceKey(utString(sduIMAGEREADER)), sduServicePtr<Reader>(&reader));
    sduServicePtr<Reader> holder;
    EXPECT_EQ(services.find_service(sduServiceKey(utString(sduIMAGEREADER)), holder), 1);
    EXPECT_EQ(holder.pointer(), &reader);
}

TEST(Services, GiveNullForAKeyThatWasNeverAdded)
{
    sduServices const services;
    sduServicePtr<Reader> holder;
    EXPECT_EQ(services.find_service(sduIMAGEREADER, holder), 0);
    EXPECT_EQ(holder.pointer(), nullptr);
}

TEST(Services, GiveNullToAHolderOfAnotherType)
{
    Reader reader;
    sduServices services;
    services.add_service(sduIMAGEREADER, sduServicePtr<Reader>(&reader));
    sduServicePtr<Writer> other;
    EXPECT_EQ(services.find_service(sduIMAGEREADER, other), 0);
    EXPECT_EQ(other.pointer(), nullptr);
    sduServicePtr<Reader const> constant;
    EXPECT_EQ(services.find_service(sduIMAGEREADER, constant), 0);
    EXPECT_EQ(constant.pointer(), nullptr);
}

TEST(Services, ReplaceAServiceOfTheSameKey)
{
    Reader first;
    Reader second;
    sduServices services;
    services.add_service(sduIMAGEREADER, sduServicePtr<Reader>(&first));
    services.add_service(sduIMAGEREADER, sduServicePtr<Reader>(&second));
    sduServicePtr<Reader> holder;
    services.find_service(sduIMAGEREADER, holder);
    EXPECT_EQ(holder.pointer(), &second);
}

TEST(Services, MayBeFoundThroughADerivedRegistry)
{
    struct Derived : sduServices {
        int find_service(sduServiceKey const & key, sduBaseServicePtr & holder) const override
        {
            ++asked;
            return sduServices::find_service(key, holder);
        }
        mutable int asked = 0;
    };
    Derived derived;
    sduServices const & services = derived;
    sduServicePtr<Reader> holder;
    services.find_service(sduIMAGEREADER, holder);
    EXPECT_EQ(derived.asked, 1);
}

TEST(ServicePtr, RefusesToCopyFromAnotherTypeAndKeepsItsPointer)
{
    Reader reader;
    Writer writer;
    sduServicePtr<Reader> holder(&reader);
    EXPECT_FALSE(holder.copy_in(sduServicePtr<Writer>(&writer)));
    EXPECT_EQ(holder.pointer(), &reader);
    Reader other;
    EXPECT_TRUE(holder.copy_in(sduServicePtr<Reader>(&other)));
    EXPECT_EQ(holder.pointer(), &other);
}

TEST(ServicePtr, MakesANewHolderOfItsTypeAndPointer)
{
    Reader reader;
    auto const copy = sduServicePtr<Reader>(&reader).make_new();
    sduServicePtr<Reader> holder;
    EXPECT_TRUE(holder.copy_in(*copy));
    EXPECT_EQ(holder.pointer(), &reader);
    EXPECT_EQ(sduServicePtr<Reader>().pointer(), nullptr);
}

TEST(ServiceKeys, AreDistinct)
{
    std::set<std::string> const keys{
        sduIMAGEREADER,       sduBODYKERNEL,      sduXMLPATHFACTORY,          sduXMLDOCUMENTFACTORY,
        sdbSDBFILEFACTORY,    sduSYNCHOPERATIONS, sduPROCESSTHREADOPERATIONS, sduLIBRARYLOADEROPERATIONS,
        s2sANALYTICSOPERATION};
    EXPECT_EQ(keys.size(), 9U);
}
