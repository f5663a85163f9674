#include "pru/pruProductInfo.h"

#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"

namespace {

constexpr char const * good_file = "# the product\n"
                                   "key = 4.2.117\n"
                                   "short_name = Crosswalk 4.2\n"
                                   "long_name = Crosswalk 4.2 Service Pack 3\n"
                                   "product_type = BETA\n"
                                   "product_sp = SP 3\n"
                                   "product_release = 4.2\n"
                                   "product_name = Crosswalk\n"
                                   "company_name = Grüße & Söhne\n";

class ProductInfo : public testing::Test {
protected:
    pruProductDataStatus read(std::string const & content, char const * key = "4.2.117")
    {
        return info.read_product_data(key, folder.write("product", content));
    }

    kitTempFolder folder;
    pruProductInfo info;
};

} // namespace

TEST_F(ProductInfo, ReadsAFileThatFitsTheKey)
{
    ASSERT_EQ(read(good_file), 0);
    EXPECT_EQ(info.short_name(), utString("Crosswalk 4.2"));
    EXPECT_EQ(info.long_name(), utString("Crosswalk 4.2 Service Pack 3"));
    EXPECT_EQ(info.value(pruPRODUCT_TYPE), utString("BETA"));
    EXPECT_EQ(info.value(pruPRODUCT_SP), utString("SP 3"));
    EXPECT_EQ(info.value(pruPRODUCT_RELEASE), utString("4.2"));
    EXPECT_EQ(info.value(pruPRODUCT_NAME), utString("Crosswalk"));
    EXPECT_EQ(info.value(pruCOMPANY_NAME), utString("Grüße & Söhne"));
}

TEST_F(ProductInfo, GivesAnInvalidStringForAFieldThatIsNotThere)
{
    EXPECT_TRUE(info.value(pruCOMPANY_NAME).invalid());
    ASSERT_EQ(read("key = 4.2.117\nproduct_type =\n"), 0);
    EXPECT_TRUE(info.value(pruCOMPANY_NAME).invalid());
    EXPECT_FALSE(info.value(pruPRODUCT_TYPE).invalid());
    EXPECT_TRUE(info.value(pruPRODUCT_TYPE).empty());
}

TEST_F(ProductInfo, MakesMissingNamesOfThoseThatAreThere)
{
    ASSERT_EQ(read("key = 4.2.117\nproduct_name = Crosswalk\n"), 0);
    EXPECT_EQ(info.short_name(), utString("Crosswalk"));
    EXPECT_EQ(info.long_name(), utString("Crosswalk"));
    ASSERT_EQ(read("key = 4.2.117\nproduct_name = Crosswalk\nshort_name = CW\n"), 0);
    EXPECT_EQ(info.long_name(), utString("CW"));
}

TEST_F(ProductInfo, TellsWhyAFileIsOfNoUse)
{
    EXPECT_EQ(info.read_product_data("4.2.117", folder / "missing"), pruProductDataUnreadable);
    EXPECT_EQ(info.read_product_data("4.2.117", folder.path().string()), pruProductDataUnreadable);
    EXPECT_EQ(info.read_product_data("4.2.117", utString::make_invalid()), pruProductDataUnreadable);
    EXPECT_EQ(read("no field at all\n"), pruProductDataMalformed);
    EXPECT_EQ(read("key = 4.2.117\nkey = 4.2.118\n"), pruProductDataMalformed);
    EXPECT_EQ(read(""), pruProductDataNoKey);
    EXPECT_EQ(read("product_name = Crosswalk\n"), pruProductDataNoKey);
    EXPECT_EQ(read(good_file, "4.2.118"), pruProductDataWrongKey);
    EXPECT_EQ(read(good_file, ""), pruProductDataWrongKey);
}

TEST_F(ProductInfo, ForgetsWhatItHadWhenAFileIsOfNoUse)
{
    ASSERT_EQ(read(good_file), 0);
    ASSERT_NE(read(good_file, "1"), 0);
    EXPECT_TRUE(info.value(pruPRODUCT_NAME).invalid());
    EXPECT_TRUE(info.short_name().invalid());
}

TEST_F(ProductInfo, DoesNotMindLineEndsOfOtherSystems)
{
    ASSERT_EQ(read("key = 4.2.117\r\nproduct_name = Crosswalk\r\n"), 0);
    EXPECT_EQ(info.value(pruPRODUCT_NAME), utString("Crosswalk"));
}
