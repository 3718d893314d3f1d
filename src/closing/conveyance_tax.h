#pragma once

#include <string_view>

/// Connecticut's real estate conveyance tax, C.G.S. Sec. 12-494. Rates current as of July 1, 2021.
namespace quillmark {

struct ConveyanceTax {
    double tax = 0;             ///< dollars, in whole cents
    std::string_view rateText;  ///< what the statement's label names, such as " 0.5% - ", or " - "
};

/// The town's part. A town that is not known pays the ordinary 0.25%.
ConveyanceTax MunicipalConveyanceTax(double salePrice, std::string_view town);

/// The state's part; `commercial` comes before `landOrMultiFamily`, a dwelling is neither.
ConveyanceTax StateConveyanceTax(double salePrice, bool commercial, bool landOrMultiFamily);

}  // namespace quillmark
