// Whatever a layout file holds, it is read without harm and without windows: a layout that is accepted has a
// page, each row stands on a page that was made, and no line is counted that the file does not have.

#include "sglResourceDialogBuilder.h"
#include "sglResourceOptionsPage.h"

#include "sdu/ubStreams.h"
#include "vmr/vmrTableInstance.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Takes what the reader says and makes nothing of it. All pages are one page without a window.
class Maker : public sglResourceLayoutMaker {
public:
    sglResourceOptionsPage * make_page(utString const &, sglResourceOptionsPage * parent) override
    {
        require(!parent || parent == &m_page);
        return &m_page;
    }
    void make_check_box(sglResourceDetails const & details, wxRect & row,
                        sglResourceOptionsPage * page) override
    {
        check(details, row, page);
    }
    void make_edit_box(sglResourceDetails const & details, wxRect & row,
                       sglResourceOptionsPage * page) override
    {
        check(details, row, page);
        row.height *= 2; // as a label of two lines does
    }
    void make_combo_box(sdbOrderedStringPairs const & values, sglResourceDetails const & details,
                        wxRect & row, sglResourceOptionsPage * page) override
    {
        for (auto value = values.iterator(); ++value;)
            require(!value().string1().invalid() && !value().string2().invalid());
        check(details, row, page);
    }
    void make_group(sglResourceDetails const & details, wxRect & box, sglResourceOptionsPage * page) override
    {
        check(details, box, page);
    }
    wxPoint to_pixels(wxPoint const & units) const override { return {units.x * 8 / 4, units.y * 17 / 8}; }
    wxPoint to_dialog_units(wxPoint const & pixels, sglResourceOptionsPage *) const override
    {
        return {pixels.x * 4 / 8, pixels.y * 8 / 17};
    }

private:
    struct Page : sglResourceOptionsPage {};

    void check(sglResourceDetails const & details, wxRect const & place, sglResourceOptionsPage const * page)
    {
        require(!details.invalid() && page == &m_page && place.width > 0 && place.height > 0);
    }

    Page m_page;
};

class Reader : public sglResourceDialogBuilder {
public:
    explicit Reader(vmrTableInstance * table) : sglResourceDialogBuilder(std::make_unique<Maker>(), table) {}
    using sglResourceDialogBuilder::line_number;
    using sglResourceDialogBuilder::read_layout;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size == 0)
        return 0;
    // The first byte is the kind of dialog.
    auto const lines = std::count(data + 1, data + size, '\n') + 1;
    int const descriptor = memfd_create("layout", 0);
    require(write(descriptor, data + 1, size - 1) == static_cast<ssize_t>(size - 1));
    {
        static vmrTableInstance table("/dev/null");
        Reader reader(&table);
        ubIFStream stream{utString("/proc/self/fd/" + std::to_string(descriptor))};
        reader.read_layout(stream, data[0] & 7U);
        require(reader.line_number() <= lines);
    }
    close(descriptor);
    return 0;
}
