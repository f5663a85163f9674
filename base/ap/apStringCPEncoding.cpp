#include "ap/apStringCPEncoding.h"

namespace {

std::string charset_of(int code_page)
{
    switch (code_page) {
    case 65001:
        return "UTF-8";
    case 20127:
        return "ASCII";
    case 20866:
        return "KOI8-R";
    case 54936:
        return "GB18030";
    default:
        break;
    }
    if (code_page > 28590 && code_page < 28607)
        return "ISO-8859-" + std::to_string(code_page - 28590);
    return "CP" + std::to_string(code_page);
}

} // namespace

apStringCPEncoding::apStringCPEncoding(int code_page) : apStringCharsetEncoding(charset_of(code_page)) {}
