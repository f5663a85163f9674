#include "iges/igesNames.h"

#include <IGESBasic_Name.hxx>
#include <IGESData_IGESModel.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <iconv.h>
#include <optional>

namespace {

std::string iconv_name(std::string const & code_page)
{
    if (code_page == "EUC") {
        return "EUC-JP";
    }
    return code_page == "GB" ? "GB2312" : code_page;
}

// Nothing when the text is not in the code page.
std::optional<std::string> to_utf8(std::string text, std::string const & code_page)
{
    auto const converter = ::iconv_open("UTF-8", code_page.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        return std::nullopt;
    }
    std::string result(4 * text.size() + 4, '\0');
    char * from = text.data();
    std::size_t from_left = text.size();
    char * to = result.data();
    std::size_t to_left = result.size();
    bool const good = ::iconv(converter, &from, &from_left, &to, &to_left) != static_cast<std::size_t>(-1);
    ::iconv_close(converter);
    if (!good) {
        return std::nullopt;
    }
    result.resize(result.size() - to_left);
    return result;
}

bool is_ascii(std::string const & text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
}

std::string as_ascii(std::string const & utf8)
{
    std::string result;
    for (unsigned char const byte : utf8) {
        if (byte < 0x80) {
            result += static_cast<char>(byte);
        } else if (byte >= 0xC0) {
            result += '_';
        }
    }
    return result;
}

} // namespace

void iges_decode_names(Handle(IGESData_IGESModel) const & model, std::string const & code_page)
{
    auto const page = iconv_name(code_page);
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const name = Handle(IGESBasic_Name)::DownCast(model->Entity(number));
        if (name.IsNull()) {
            continue;
        }
        if (name->Value().IsNull()) {
            // The toolkit follows a name that could not be read without looking.
            name->Init(1, new TCollection_HAsciiString(""));
        }
        std::string const text = name->Value()->ToCString();
        if (is_ascii(text)) {
            continue;
        }
        auto utf8 = to_utf8(text, page);
        if (!utf8) {
            utf8 = to_utf8(text, "ISO8859-1");
        }
        if (utf8) {
            name->Value()->Clear();
            name->Value()->AssignCat(utf8->c_str());
        }
    }
}

std::int64_t iges_make_names_ascii(sdkDocument & document)
{
    std::int64_t changed = 0;
    auto const change = [&](TDF_Label const & label) {
        if (auto const name = sdkDocument::name(label); !is_ascii(name)) {
            sdkDocument::set_name(label, as_ascii(name));
            ++changed;
        }
    };
    TDF_LabelSequence all;
    document.shapes()->GetShapes(all);
    for (auto const & label : all) {
        change(label);
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(label, details);
        for (auto const & detail : details) {
            change(detail);
        }
    }
    return changed;
}
