#include "distance/measure_lists.h"

#include "distance/measures.h"
#include "numbers/runtime_failure.h"

#include <array>

namespace dorvan {

namespace {

struct MeasureRow {
    std::int16_t Code;
    const char* Text;
};

// By data kind, then by position.
const std::array<std::vector<MeasureRow>, 3> Kinds{
    {{{DistanceType::Euclidean, "Euclidean"},
      {DistanceType::Manhattan, "Manhattan City-Block"},
      {DistanceType::Chebychev, "Chebychev"},
      {DistanceType::Customized, "Customized"}},
     {{DistanceType::Henzel, "Henzel distance"},
      {DistanceType::Czekanowski, "Czekanowski distance (mean City-Block)"}},
     {{DistanceType::DfDD, "DfDD Distance"},
      {DistanceType::LanceAndWilliams, "Lance and Williams"},
      {DistanceType::Jaccard, "Jaccard (mirror)"},
      {DistanceType::YulesQ, "Yule's Q (mirror)"}}}};

std::array<std::vector<std::string>, 3> TextsOfKinds() {
    std::array<std::vector<std::string>, 3> texts;
    for (std::size_t kind = 0; kind < Kinds.size(); ++kind)
        for (const MeasureRow& row : Kinds[kind]) texts[kind].emplace_back(row.Text);
    return texts;
}

std::size_t CheckedPlace(int place, std::size_t count) {
    if (place < 0 || std::size_t(place) >= count) throw RuntimeFailure(Failure::SubscriptOutOfRange);
    return std::size_t(place);
}

} // namespace

const std::vector<std::string>& DataKinds() {
    static const std::vector<std::string> kinds{"numerical data", "numerical data with NA", "binary"};
    return kinds;
}

const std::vector<std::string>& MeasuresOfKind(int dataKind) {
    static const auto texts = TextsOfKinds();
    return texts[CheckedPlace(dataKind, texts.size())];
}

std::int16_t MeasureCode(int dataKind, int position) {
    const auto& rows = Kinds[CheckedPlace(dataKind, Kinds.size())];
    return rows[CheckedPlace(position, rows.size())].Code;
}

MeasurePlace PlaceOfMeasure(std::int16_t code) {
    for (std::size_t kind = 0; kind < Kinds.size(); ++kind)
        for (std::size_t position = 0; position < Kinds[kind].size(); ++position)
            if (Kinds[kind][position].Code == code) return {int(kind), int(position)};
    throw RuntimeFailure(Failure::InvalidProcedureCall);
}

void SelectMeasure(std::int16_t code, ComboBox& kinds, ComboBox& measures) {
    const MeasurePlace place = PlaceOfMeasure(code);
    kinds.ListIndex = place.DataKind;
    measures.List = MeasuresOfKind(place.DataKind);
    measures.ListIndex = place.Position;
}

} // namespace dorvan
