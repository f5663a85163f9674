#include "translators/hostile_test/hostileTable.h"

std::vector<HostileRow> const & hostile_table()
{
    static std::vector<HostileRow> const table{
        {.file = "bomb12.step", .status = "completed", .faces = 24576, .bodies = 4096},
        {"bomb20.brep", "too_big", {"stand for 9437183 shapes", "at most 2000000"}},
        {"bomb20.step", "too_big", {"stand for 3145727 shapes", "at most 2000000"}},
        {.file = "chain200.step", .status = "completed", .verdict = "verified", .faces = 6, .bodies = 1},
        {"cnt_surf.brep", "read_error", {"line 49: the count 2000000000 does not fit a file of this size"}},
        {"cnt_tri.brep", "read_error", {"line 56: the count 2000000000 does not fit a file of this size"}},
        {"cnt_tsh.brep", "read_error", {"line 58: the count 2000000000 does not fit a file of this size"}},
        {"cycle3.step",
         "read_error",
         {R"(an assembly contains itself: #376 "A1" > #388 "A3" > #382 "A2" > #376 "A1")"}},
        {.file = "dangling_ref.step",
         .status = "completed",
         .told = {"#99999: the file does not have this entity, to which #34 CLOSED_SHELL refers"},
         .verdict = "losses",
         .faces = 5},
        {"empty_step.brep", "read_error", {"line 7:"}},
        {"inf_coord.brep", "read_error", {"line 40: the number 1e400 is not finite"}},
        {.file = "inf_hang.iges",
         .status = "completed",
         .told = {"D11: 1.E400 stands where a number should be; D3 (trimmed surface), which needs it"},
         .verdict = "losses",
         .faces = 6},
        {.file = "nan_hang.step",
         .status = "completed",
         .told = {"#41: NaN stands where a number should be; #35 ADVANCED_FACE, which needs it",
                  "#255 ADVANCED_FACE", "#349 ADVANCED_FACE"},
         .verdict = "losses",
         .faces = 3},
        {"p3100000000.brep", "read_error", {"line 49: the count 100000000 does not fit a file of this size"}},
        {"self2.step", "read_error", {R"(an assembly contains itself: #382 "A2" > #382 "A2")"}},
        {"under4.step",
         "read_error",
         {R"(an assembly contains itself: #376 "A1" > #388 "A3" > #382 "A2" > #376 "A1")"}},
        {"unreadable_iges.brep", "read_error", {"line 64: \"$\" stands where a number should be"}},
    };
    return table;
}
