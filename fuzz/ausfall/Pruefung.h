#pragma once

namespace vesk::ausfall {

/// Lets every call of every way of writing fail in turn and looks at what is left. False: something was lost,
/// or nobody was told; the output names it.
bool AlleAusfaelle();

}  // namespace vesk::ausfall
