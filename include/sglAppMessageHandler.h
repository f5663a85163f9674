#pragma once

#include <memory>

#include "ut/utString.h"

class sglApp;
class sglHelpDisplayer;

/// What stands behind the commands that lead out of the main window: the maker's pages on the web, the report
/// of the finished translations, the news of this version. Graphical thread.
class sglAppMessageHandler {
public:
    explicit sglAppMessageHandler(sglApp const * app);
    ~sglAppMessageHandler();
    sglAppMessageHandler(sglAppMessageHandler const &) = delete;
    sglAppMessageHandler & operator=(sglAppMessageHandler const &) = delete;

    void OnTarnloftHomePage() const;
    void OnViewTranslationDetails() const; ///< ends when the user has closed the report
    void OnWhatNewInCrosswalk() const;

protected:
    /// Whether the browser came up is not known.
    void start_browser(utString const & url) const;

private:
    sglApp const * m_app;
    /// The help window lives as long as its displayer, so that outlives the command.
    mutable std::unique_ptr<sglHelpDisplayer> m_help;
};
