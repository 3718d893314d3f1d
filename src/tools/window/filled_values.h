#pragma once

#include <string>

#include "core/fields.h"
#include "core/job.h"

namespace quillmark {

/// A job's values as the side tools take them: whatever is unfilled is empty, where documents show its
/// marker.
class FilledValues {
 public:
    explicit FilledValues(const Job& job) : job_(job) {}

    /// A field, or a derived value by its number k*1000+n.
    const std::string& operator[](int n) const {
        static const std::string kNone;
        return job_.IsFilled(n % 1000) ? job_.D(n) : kNone;
    }
    bool Has(Option option) const { return job_.optConf(option); }
    /// The attorney's name, without what is kept behind a slash.
    std::string Attorney() const {
        const std::string& name = (*this)[field::SellerAtty];
        return name.substr(0, name.find('/'));
    }

 private:
    const Job& job_;
};

}  // namespace quillmark
