// drag-source PATH...: a window that stands for a file manager. Pressing the mouse in it drags the files to
// wherever the mouse is released; their names go out as they are, byte for byte. Says on standard output
// where its middle is, and of each drag its start and how it ended.

#include <cstdio>
#include <glib.h>
#include <wx/app.h>
#include <wx/dnd.h>
#include <wx/frame.h>

namespace {

std::string uri_list;

class Source : public wxDropSource {
public:
    explicit Source(wxWindow * window) : wxDropSource(window)
    {
        m_files.SetData(uri_list.size(), uri_list.data());
        SetData(m_files);
    }

private:
    wxCustomDataObject m_files{wxDataFormat("text/uri-list")};
};

class Window : public wxFrame {
public:
    Window()
        : wxFrame(nullptr, wxID_ANY, "drag source", wxPoint(1700, 900), wxSize(120, 120),
                  wxSTAY_ON_TOP | wxBORDER_NONE | wxFRAME_NO_TASKBAR)
    {
        Bind(wxEVT_LEFT_DOWN, &Window::OnPress, this);
        Bind(wxEVT_PAINT, &Window::OnPaint, this);
    }

private:
    void OnPress(wxMouseEvent &)
    {
        std::puts("dragging");
        std::fflush(stdout);
        wxDragResult const end = Source(this).DoDragDrop(wxDrag_CopyOnly);
        std::puts(end == wxDragCopy || end == wxDragMove ? "dropped" : "not dropped");
        std::fflush(stdout);
    }
    void OnPaint(wxPaintEvent & event)
    {
        event.Skip();
        if (m_ready)
            return;
        m_ready = true;
        wxRect const place = GetScreenRect();
        std::printf("at %d %d\n", place.x + place.width / 2, place.y + place.height / 2);
        std::fflush(stdout);
    }

    bool m_ready = false;
};

class App : public wxApp {
    bool OnInit() override
    {
        (new Window)->Show();
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP_NO_MAIN(App);

int main(int count, char ** arguments)
{
    for (int i = 1; i < count; ++i) {
        char * const uri = g_filename_to_uri(arguments[i], nullptr, nullptr);
        if (!uri)
            return 1;
        uri_list += std::string(uri) + "\r\n";
        g_free(uri);
    }
    int toolkit_count = 1;
    return wxEntry(toolkit_count, arguments);
}
