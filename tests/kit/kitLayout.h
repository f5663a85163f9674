#pragma once

#include "kit/kitTempFolder.h"
#include "sdu/ubStreams.h"
#include "sglResourceDialogBuilder.h"
#include "sglResourceOptionsPage.h"
#include "vmr/vmrTableInstance.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

/// Writes down what a layout asks for instead of making windows. A dialog unit is two pixels.
class kitLayoutRecorder : public sglResourceLayoutMaker {
public:
    struct Page : sglResourceOptionsPage {
        std::string title;
        sglResourceOptionsPage * above = nullptr;
    };
    struct Row {
        std::string kind;
        std::string name;
        std::string label;
        std::string tip;
        wxRect place;
        sglResourceOptionsPage const * page;
        std::vector<std::string> values;
    };

    sglResourceOptionsPage * make_page(utString const & title, sglResourceOptionsPage * parent) override
    {
        auto & page = *pages.emplace_back(std::make_unique<Page>());
        page.title = title.str();
        page.above = parent;
        return &page;
    }
    void make_check_box(sglResourceDetails const & details, wxRect & row,
                        sglResourceOptionsPage * page) override
    {
        add("boolean", details, row, page);
    }
    void make_edit_box(sglResourceDetails const & details, wxRect & row,
                       sglResourceOptionsPage * page) override
    {
        add("infinite", details, row, page);
    }
    void make_combo_box(sdbOrderedStringPairs const & values, sglResourceDetails const & details,
                        wxRect & row, sglResourceOptionsPage * page) override
    {
        add("finite", details, row, page);
        for (auto value = values.iterator(); ++value;)
            rows.back().values.push_back(value().string1().str());
    }
    void make_group(sglResourceDetails const & details, wxRect & box, sglResourceOptionsPage * page) override
    {
        add("group", details, box, page);
    }
    wxPoint to_pixels(wxPoint const & units) const override { return {units.x * 2, units.y * 2}; }
    wxPoint to_dialog_units(wxPoint const & pixels, sglResourceOptionsPage *) const override
    {
        return {pixels.x / 2, pixels.y / 2};
    }

    std::vector<std::unique_ptr<Page>> pages;
    std::vector<Row> rows;
    std::set<std::string> wrapping; ///< names of resources whose label takes two lines

private:
    void add(char const * kind, sglResourceDetails const & details, wxRect & place,
             sglResourceOptionsPage * page)
    {
        if (wrapping.contains(details.name().str()))
            place.height *= 2;
        rows.push_back({kind,
                        details.name().str(),
                        details.short_description().str(),
                        details.long_description().str(),
                        place,
                        page,
                        {}});
    }
};

/// A builder whose operations a test may call, over a recorder.
class kitLayoutReader : public sglResourceDialogBuilder {
public:
    explicit kitLayoutReader(vmrTableInstance * table) : kitLayoutReader(new kitLayoutRecorder, table) {}

    int read(std::string const & file, unsigned int mask)
    {
        ubIFStream stream{utString(file)};
        return read_layout(stream, mask);
    }
    kitLayoutRecorder & recorder() { return *m_recorder; }

    using sglResourceDialogBuilder::layout_value;
    using sglResourceDialogBuilder::line_number;
    using sglResourceDialogBuilder::read_layout;
    using sglResourceDialogBuilder::replace;
    using sglResourceDialogBuilder::resource_available;
    using sglResourceDialogBuilder::split_string;
    using sglResourceDialogBuilder::strip_macro;

private:
    kitLayoutReader(kitLayoutRecorder * recorder, vmrTableInstance * table)
        : sglResourceDialogBuilder(std::unique_ptr<sglResourceLayoutMaker>(recorder), table),
          m_recorder(recorder)
    {
    }

    kitLayoutRecorder * m_recorder;
};
