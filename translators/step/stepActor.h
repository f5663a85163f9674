#pragma once

#include <STEPControl_ActorRead.hxx>

// Open CASCADE passes over a representation in which it knows no item. This actor lets it go on where one of
// the items has a shape already.
class stepActor : public STEPControl_ActorRead {
public:
    // The process keeps the actor, so that it is only looked at from here.
    explicit stepActor(Transfer_TransientProcess const & process) : m_process(process) {}

    Standard_Boolean Recognize(Handle(Standard_Transient) const & entity) override;

private:
    bool has_shape(Handle(Standard_Transient) const & item) const;

    Transfer_TransientProcess const & m_process;
};
