#pragma once

#include "s2s/s2sAnalytics.h"
#include "ut/utPtr.h"
#include "ut/utString.h"

/// From now on aniUsageDialogs shows windows, over the choice and the records of `analytics`, which has to
/// live until sgl_end_usage_dialogs. At start-up the user is asked once in their life: not again after any
/// answer, and not at all where no answer can be kept. From the menu they see what was recorded and can
/// delete it and change their mind. Graphical thread.
void sgl_present_usage_dialogs(utObserverPtr<s2sAnalytics const> analytics);
void sgl_end_usage_dialogs();

/// What is recorded, in the user's language: the text for sglAnalytics::initialise.
utString sgl_usage_data_text();
