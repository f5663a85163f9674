// A program that links the window toolkit and ends: what a start of the translator is compared with.

#include <wx/app.h>
#include <wx/init.h>

namespace {

class BareApp : public wxApp {
public:
    bool Initialize(int & count, wxChar ** words) override { return wxAppConsole::Initialize(count, words); }
    bool OnInit() override { return true; }
    int OnRun() override { return 0; }
};

} // namespace

wxIMPLEMENT_APP_NO_MAIN(BareApp);

int main(int argc, char ** argv)
{
    return wxEntry(argc, argv);
}
