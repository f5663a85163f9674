#pragma once

#include "sdk/sdkText.h"

#include <utility>

enum class sdkStatus { completed, read_error, write_error, too_big, cancelled };

// What a step of a translation came to. A failure carries the text that tells the user the file, the place
// and what to do; the host sends it to the error stream.
class sdkResult {
public:
    static sdkResult completed() { return {}; }
    static sdkResult cancelled() { return {sdkStatus::cancelled, {}}; }
    static sdkResult read_error(sdkText text) { return {sdkStatus::read_error, std::move(text)}; }
    static sdkResult write_error(sdkText text) { return {sdkStatus::write_error, std::move(text)}; }
    static sdkResult too_big(sdkText text) { return {sdkStatus::too_big, std::move(text)}; }

    explicit operator bool() const { return m_status == sdkStatus::completed; }
    sdkStatus status() const { return m_status; }
    sdkText const & text() const { return m_text; }

private:
    sdkResult() = default;
    sdkResult(sdkStatus status, sdkText text) : m_status(status), m_text(std::move(text)) {}

    sdkStatus m_status = sdkStatus::completed;
    sdkText m_text;
};
