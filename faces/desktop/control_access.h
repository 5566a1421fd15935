#pragma once

namespace zelvo {

/// Tells screen readers and other helpers what the controls of the game's windows are.
void DescribeControlsToHelpers();

}  // namespace zelvo
