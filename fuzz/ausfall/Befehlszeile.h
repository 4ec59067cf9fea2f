#pragma once

namespace vesk::ausfall {

/// The same for `vesk drucken` and `vesk rechnen`, in processes of their own with the library preloaded.
bool BefehlszeileFaelltAus();

}  // namespace vesk::ausfall
