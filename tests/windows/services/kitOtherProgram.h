#pragma once

#include <memory>

/// A connection to the display beside that of the toolkit: to the toolkit it is another program.
class kitOtherProgram {
public:
    kitOtherProgram();
    ~kitOtherProgram();
    kitOtherProgram(kitOtherProgram const &) = delete;
    kitOtherProgram & operator=(kitOtherProgram const &) = delete;

    void take_clipboard();
    bool has_clipboard() const;

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};
