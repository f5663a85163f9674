#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <wx/mstream.h>
#include <wx/xml/xml.h>
#include <wx/xrc/xmlres.h>

/// Resources of a test's own, given as the objects of an XRC document, for as long as this lives.
class kitXrc {
public:
    explicit kitXrc(std::string const & objects)
    {
        std::string const text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
                                 "<resource xmlns=\"http://www.wxwidgets.org/wxxrc\" version=\"2.5.3.0\">" +
                                 objects + "</resource>";
        wxMemoryInputStream stream(text.data(), text.size());
        auto document = std::make_unique<wxXmlDocument>(stream);
        EXPECT_TRUE(document->IsOk());
        EXPECT_TRUE(wxXmlResource::Get()->LoadDocument(document.release(), name()));
    }
    ~kitXrc() { wxXmlResource::Get()->Unload(name()); }
    kitXrc(kitXrc const &) = delete;
    kitXrc & operator=(kitXrc const &) = delete;

private:
    static char const * name() { return "of-the-test"; }
};
