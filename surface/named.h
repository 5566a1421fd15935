#pragma once

#include "surface/window.h"

// A control to be placed, under the name of the member that it is, and an entry of a control array
// under its index: the name and the control cannot get out of step.
#define NAMED(member) \
  NamedControl { member, #member }
#define ENTRY(array, index) \
  NamedControl { (array)[index], #array, index }
