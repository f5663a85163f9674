#pragma once

#include <Message_ProgressIndicator.hxx>

// A progress that tests look at, and that can be cancelled.
class kitIndicator : public Message_ProgressIndicator {
public:
    bool cancelled = false;
    int shown = 0;

protected:
    Standard_Boolean UserBreak() override { return cancelled; }
    void Show(Message_ProgressScope const &, Standard_Boolean) override { ++shown; }
};
