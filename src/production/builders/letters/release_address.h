#pragma once

#include "production/builders/builder_list.h"

namespace quillmark {

/// Who receives the release of a mortgage that is paid off, and records it.
enum class ReleaseGoesTo { SellersAttorney, TrackingService, BuyersAttorney };

/// Where a transmittal of this variant sends the release. Beside New Haven's closing letter, which promises
/// the release to the buyer's attorney, every transmittal sends it there.
ReleaseGoesTo ReleaseOfTransmittal(const Production& production, const Variant& variant);

/// Where the transmittal of this run sends the release, for a letter that reports it.
ReleaseGoesTo ReleaseOfRun(const Production& production);

}  // namespace quillmark
