#include "sdu/sduStartupKeys.h"

#include <gtest/gtest.h>

TEST(StartupKeys, HaveTheTextsThatStandInTheFilesOfUsers)
{
    EXPECT_STREQ(sduSTARTASVIEWER, "start_as_viewer");
    EXPECT_STREQ(sduPREFERREDINPUTFORMAT, "preferred_input_format");
    EXPECT_STREQ(sduPREFERREDOUTPUTFORMAT, "preferred_output_format");
    EXPECT_STREQ(sduDEFAULTSAVEDIRECTORY, "default_save_directory");
    EXPECT_STREQ(sduTRIANGULATIONTOLERANCE, "triangulation_tolerance");
    EXPECT_STREQ(sduCOLOURSCHEME, "colour_scheme");
    EXPECT_STREQ(sduTOPCOLOUR, "top_colour");
    EXPECT_STREQ(sduBOTTOMCOLOUR, "bottom_colour");
    EXPECT_STREQ(sduGRADUATEDBACKGROUND, "graduated_background");
    EXPECT_STREQ(sduFACECOLOUR, "face_colour");
    EXPECT_STREQ(sduBACKFACECOLOUR, "back_face_colour");
    EXPECT_STREQ(sduSELECTIONCOLOUR, "selection_colour");
}
