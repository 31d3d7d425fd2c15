#include "engine/CandidateBuilder.h"

#include <memory>
#include <utility>

#include "model/CropKind.h"

namespace verdalis {

CandidateBuilder::CandidateBuilder(const SearchInputs& inputs) : inputs_(inputs) {
  for (const double acres : inputs.landSplit.getSplits()) {
    auto field = std::make_shared<Field>();
    field->acres = acres;
    field->annualRain = inputs.rain;
    candidate_.Add(std::move(field));
  }
}

FieldCollection& CandidateBuilder::build(const Split& depths, const std::vector<std::size_t>& crops) {
  candidate_.TotalCost = 0;
  for (std::size_t k = 0; k < candidate_.mCol.size(); ++k) {
    plant(*candidate_.mCol[k], *inputs_.combinations.crops()[crops[k]], depths.getSplits()[k]);
  }
  return candidate_;
}

double netDepthOf(const Crop& crop, double depth) {
  return cropKind(crop.cropType) == CropKind::fallow ? 0 : depth;
}

void CandidateBuilder::plant(Field& field, const Crop& crop, double depth) const {
  *field.theCrop = crop;
  *field.irrigCosts = inputs_.irrigationCosts;
  field.Depth = netDepthOf(crop, depth);
  field.TotalCost = 0;
  field.TotalReturn = 0;
  double netDepth = field.Depth;  // setYield limits its argument to the table; the field keeps its own depth
  field.theCrop->setYield(netDepth, field.annualRain);
}

}  // namespace verdalis
