#include "sglServices.h"

#include "sglDynamicLibrary.h"
#include "sglThreadComm.h"

#include "ap/apStringEncodingChooser.h"
#include "kit/kitAppTest.h"
#include "s2s/s2sAnalytics.h"

namespace {

using Services = kitAppTest;

} // namespace

TEST_F(Services, CannotBeFoundBeforeTheyAreInitialised)
{
    app().pre_splash_screen_init();
    EXPECT_EQ(sgl_synch_operations(*app().application_information()), nullptr);
    EXPECT_EQ(sglThreadComm::magic_synch_operations(), nullptr);
}

TEST_F(Services, GiveTheOperationsOfThePlatform)
{
    start();
    auto const & info = *app().application_information();
    EXPECT_NE(sgl_synch_operations(info), nullptr);
    EXPECT_NE(sgl_process_thread_operations(info), nullptr);
    EXPECT_NE(sgl_library_loader_operations(info), nullptr);
    EXPECT_EQ(sglThreadComm::magic_synch_operations(), sgl_synch_operations(info));
}

TEST_F(Services, GiveNullForAKeyThatWasNeverAdded)
{
    start();
    sduServicePtr<s2sAnalytics> service;
    EXPECT_EQ(
        app().application_information()->services()->find_service(sduServiceKey("no such service"), service),
        0);
    EXPECT_EQ(service.pointer(), nullptr);
}

TEST_F(Services, GiveNullForAHolderOfAnotherType)
{
    start();
    sduServicePtr<int> service;
    app().application_information()->services()->find_service(sduServiceKey(s2sANALYTICSOPERATION), service);
    EXPECT_EQ(service.pointer(), nullptr);
}

TEST_F(Services, HoldEveryKeyUnderItsType)
{
    start();
    auto const * const services = app().application_information()->services();
    auto const there = [&](auto holder, char const * key) {
        return services->find_service(sduServiceKey(key), holder) != 0 && holder.pointer() != nullptr;
    };
    EXPECT_TRUE(there(sduServicePtr<iioImageReader>(), sduIMAGEREADER));
    EXPECT_TRUE(there(sduServicePtr<sdaIAQTKernel const>(), sduBODYKERNEL));
    EXPECT_TRUE(there(sduServicePtr<axmIXmlPathFactory>(), sduXMLPATHFACTORY));
    EXPECT_TRUE(there(sduServicePtr<std::shared_ptr<axmDocumentFactory>>(), sduXMLDOCUMENTFACTORY));
    EXPECT_TRUE(there(sduServicePtr<sdbSdbFileFactory const>(), sdbSDBFILEFACTORY));
    EXPECT_TRUE(there(sduServicePtr<s2sAnalytics>(), s2sANALYTICSOPERATION));
}

TEST_F(Services, HoldWhatAModuleOfTheInstallationAdds)
{
    auto const place = folder() / "installation/lib/vmr/services";
    std::filesystem::create_directories(place);
    std::filesystem::copy(TEST_MODULE, place + "/answer.so");
    start();
    sduServicePtr<int const> answer;
    app().application_information()->services()->find_service(sduServiceKey("test.answer"), answer);
    ASSERT_NE(answer.pointer(), nullptr);
    EXPECT_EQ(*answer.pointer(), 42);
}

TEST(DynamicLibrary, ThatIsMissingGivesAnObjectThatSaysSoAndNoWord)
{
    testing::internal::CaptureStderr();
    sglDynamicLibraryLoader loader;
    auto const library = loader.load_ut("/no/such/library.so");
    ASSERT_NE(library, nullptr);
    EXPECT_FALSE(library->loaded_successfully());
    EXPECT_EQ(library->proc_address("anything"), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(DynamicLibrary, GivesTheAddressOfASymbolAndNullForOneThatItLacks)
{
    sglDynamicLibraryLoader loader;
    auto const library = loader.load(apPathName(L"libm.so.6"));
    ASSERT_TRUE(library->loaded_successfully());
    EXPECT_NE(library->proc_address("cos"), nullptr);
    testing::internal::CaptureStderr();
    EXPECT_EQ(library->proc_address("no_such_symbol"), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}
