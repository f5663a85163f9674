#pragma once

#include <IGESCAFControl_Reader.hxx>
#include <TColStd_MapOfTransient.hxx>

// The toolkit's reader with the roots of a file that igesActor makes shapes of besides those that the toolkit
// knows: entities that no other entity uses and that are visible, where only such are to be read.
class igesRoots : public IGESCAFControl_Reader {
public:
    // To be called once, after the file was parsed.
    void add_own();
    // Roots that are not to be translated.
    void remove(TColStd_MapOfTransient const & entities);
};
