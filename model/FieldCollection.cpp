#include "model/FieldCollection.h"

#include <algorithm>
#include <utility>

#include "model/checked.h"
#include "model/listIndex.h"

namespace verdalis {

void FieldCollection::AddBatchDescription(const std::string& name, double value, const UnitsPair& units) {
  theVariable.push_back(name);
  theValue.push_back(value);
  theUnits.push_back(units);
}

void FieldCollection::Add(std::shared_ptr<Field> field) {
  mCol.push_back(std::move(field));
  isNothing = false;
}

const std::shared_ptr<Field>& FieldCollection::Item(long index) const {
  return mCol[listIndex(index, mCol.size())];
}

void FieldCollection::Remove(long index) {
  mCol.erase(mCol.begin() + static_cast<std::ptrdiff_t>(listIndex(index, mCol.size())));
}

std::string FieldCollection::toString() const {
  std::string text;
  for (const auto& field : mCol) {
    text += field->toString() + "\r\n" + field->theCrop->inputCosts.toString() + "\r\n";
  }
  return text;
}

double FieldCollection::getReturn() const {
  double sum = 0;
  for (const auto& field : mCol)
    sum += field->getReturn();
  return checked(sum, "The return of the farm");
}

double FieldCollection::getCosts(double efficiency) {
  if (TotalCost != 0) return TotalCost;
  double sum = 0;
  for (const auto& field : mCol)
    sum += field->getCosts(efficiency);
  TotalCost = checked(sum, "The cost of the farm");
  return TotalCost;
}

FieldCollection FieldCollection::Copy() const {
  FieldCollection copy;
  copy.mCol.reserve(mCol.size());
  for (const auto& field : mCol)
    copy.mCol.push_back(std::make_shared<Field>(field->Copy()));
  copy.isNew = isNew;
  copy.TotalCost = TotalCost;
  copy.theVariable = theVariable;
  copy.theValue = theValue;
  copy.theUnits = theUnits;
  return copy;
}

void FieldCollection::ResetBatch() {
  for (const auto& field : mCol) {
    field->theCrop->inputCosts.UseBatch = false;
    field->theCrop->inputCosts.BatchGeneralCosts = 0;
    field->irrigCosts->UseBatch = false;
    field->irrigCosts->BatchIrrigationCosts = 0;
    field->TotalCost = 0;
    field->TotalReturn = 0;
  }
  theVariable.clear();
  theValue.clear();
  theUnits.clear();
}

double FieldCollection::getVolume() const {
  double sum = 0;
  for (const auto& field : mCol)
    sum += field->getVolume();
  return checked(sum, "The irrigation volume of the farm");
}

double FieldCollection::getProfit(double efficiency) {
  const double costs = getCosts(efficiency);
  return checked(getReturn() - costs, "The profit of the farm");
}

std::vector<std::string> FieldCollection::getCrops() const {
  std::vector<std::string> names{Item(1)->theCrop->cropType};
  for (const auto& field : mCol) {
    const std::string& name = field->theCrop->cropType;
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

}  // namespace verdalis
