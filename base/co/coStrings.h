#pragma once

#include "co/coDynArr.h"
#include "co/coPageArr.h"
#include "ut/utString.h"

using utStringcoPageArr = coPageArr<utString>;
using utStringcoPageArrcoIterator = utStringcoPageArr::coIterator;
using utStringcoDynArr = coDynArr<utString>;
