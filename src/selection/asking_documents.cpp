#include "selection/asking_documents.h"

#include <algorithm>

#include "core/fields.h"
#include "selection/document_table.h"

namespace quillmark {

namespace {

bool Holds(const std::vector<int>& fields, int n) {
    return std::ranges::find(fields, n) != fields.end();
}

bool Applies(const Addition& addition, const Job& job) {
    return job.optConf(addition.option) != (addition.when == When::NotOption);
}

}  // namespace

bool AsksFor(std::string_view document, int n, const Job& job) {
    const DocumentFields* row = FieldsOfDocument(document);
    if (!row) return false;
    if (Holds(row->fields, n)) return true;
    const bool isAddress = n >= field::Seller1Addr1 && n <= field::Seller1CityStateZip;
    const bool isForwarding = n >= field::SellerFwdAddr1 && n <= field::SellerFwdCityStateZip;
    if (row->mailingAddress && (isAddress || isForwarding)) return true;
    return std::ranges::any_of(row->additions, [&](const Addition& addition) {
        const bool asksPrincipal = addition.when == When::Principal && n == field::PrincipalOfPower;
        return Applies(addition, job) && (asksPrincipal || Holds(addition.fields, n));
    });
}

std::vector<std::string> DocumentsAsking(int n, const JobInHand& inHand) {
    std::vector<std::string> documents;
    for (const JobListLine& line : inHand.List2)
        if (AsksFor(line.name, n, inHand.job) && std::ranges::find(documents, line.name) == documents.end())
            documents.push_back(line.name);
    return documents;
}

}  // namespace quillmark
