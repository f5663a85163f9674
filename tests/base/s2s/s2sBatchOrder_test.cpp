#include <gtest/gtest.h>

#include "batchKit.h"
#include "s2s/s2sBatchOrder.h"

namespace fs = std::filesystem;

namespace {

class BatchOrder : public BatchTest {
protected:
    std::vector<int> order(s2sTranslationElementscoPageArr const & entries) const
    {
        s2sBatchOrder order(entries);
        std::vector<int> last;
        for (int i = 0; i < entries.count(); ++i)
            last.push_back(order.last_before(i));
        return last;
    }
    s2sTranslationElements files(std::string const & in, std::string const & out) const
    {
        return translation(folder / in, folder / out, "");
    }
};

using Order = std::vector<int>;

TEST_F(BatchOrder, LeavesEntriesWithFilesOfTheirOwnFree)
{
    EXPECT_EQ(order({files("a", "out/a"), files("b", "out/b"), files("c", "out/c")}), (Order{-1, -1, -1}));
}

TEST_F(BatchOrder, LetsSeveralReadOneFile)
{
    make_input("a");
    EXPECT_EQ(order({files("a", "out/1"), files("a", "out/2")}), (Order{-1, -1}));
}

TEST_F(BatchOrder, KeepsReadersBehindTheWriter)
{
    EXPECT_EQ(order({files("a", "out/1"), files("b", "out/2"), files("out/1", "out/3")}), (Order{-1, -1, 0}));
}

TEST_F(BatchOrder, KeepsWritersBehindTheReader)
{
    EXPECT_EQ(order({files("a", "out/1"), files("b", "a"), files("c", "b")}), (Order{-1, 0, 1}));
}

TEST_F(BatchOrder, KeepsWritersOfOneFileBehindEachOther)
{
    EXPECT_EQ(order({files("a", "out/1"), files("b", "out/1"), files("c", "out/2"), files("d", "out/1")}),
              (Order{-1, 0, -1, 1}));
}

TEST_F(BatchOrder, KnowsAFileUnderOtherNames)
{
    fs::create_symlink(folder / "out/new", folder / "dangling");
    fs::create_directory_symlink(folder / "out", folder / "folder");
    make_input("old");
    fs::create_hard_link(folder / "old", folder / "hard");
    EXPECT_EQ(order({files("a", "out/new"), files("dangling", "out/b")}), (Order{-1, 0}));
    EXPECT_EQ(order({files("a", "out/new"), files("folder/new", "out/b")}), (Order{-1, 0}));
    EXPECT_EQ(order({files("a", "out/../out/./new"), files("out/new", "out/b")}), (Order{-1, 0}));
    EXPECT_EQ(order({files("a", "old"), files("hard", "out/b")}), (Order{-1, 0}));
}

} // namespace
