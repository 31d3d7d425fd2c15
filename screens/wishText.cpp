#include "screens/wishText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <utility>

#include "text/encoding.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

using Kind = Wish::Kind;

constexpr std::string_view blanks = " \t";
constexpr std::size_t mostCropsToName = 60;

[[noreturn]] void refuse(const std::string& why) {
  throw std::invalid_argument(why);
}

/// The words of a wish.
class Words {
 public:
  explicit Words(std::string_view text) : text_(text) {
    for (std::size_t begin = text.find_first_not_of(blanks); begin != std::string_view::npos;) {
      const std::size_t end = std::min(text.find_first_of(blanks, begin), text.size());
      words_.push_back(text.substr(begin, end - begin));
      begin = text.find_first_not_of(blanks, end);
    }
  }

  [[nodiscard]] std::size_t count() const { return words_.size(); }
  [[nodiscard]] std::string_view at(std::size_t index) const { return words_.at(index); }

  [[nodiscard]] bool is(std::size_t index, std::string_view word) const {
    return index < count() && lowerCase(words_[index]) == word;
  }

  /// The text from one word up to another, including the blanks between the words.
  [[nodiscard]] std::string_view between(std::size_t first, std::size_t end) const {
    const auto begin = static_cast<std::size_t>(words_.at(first).data() - text_.data());
    const std::string_view& last = words_.at(end - 1);
    return text_.substr(begin, static_cast<std::size_t>(last.data() - text_.data()) + last.size() - begin);
  }

 private:
  std::string_view text_;
  std::vector<std::string_view> words_;
};

/// The name with single blanks between its words.
std::string squeezed(std::string_view name) {
  const Words words(name);
  std::string text;
  for (std::size_t i = 0; i < words.count(); ++i)
    text += (i == 0 ? "" : " ") + std::string(words.at(i));
  return text;
}

std::string listOf(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t i = 0; i < std::min(names.size(), mostCropsToName); ++i)
    text += (i == 0 ? "" : ", ") + quoteForMessage(names[i]);
  return text;
}

bool contains(const std::vector<std::string>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// The crop of the library with a name: matched exactly, then ignoring case, then ignoring the number of
/// blanks between words.
std::string cropNamed(std::string_view name, const WishContext& context) {
  if (contains(context.library, name)) return std::string(name);
  const auto alike = [&](auto form) {
    std::vector<std::string> found;
    for (const std::string& crop : context.library) {
      if (form(crop) == form(name) && !contains(found, crop)) found.push_back(crop);
    }
    return found;
  };
  std::vector<std::string> found = alike([](std::string_view text) { return lowerCase(text); });
  if (found.empty()) found = alike([](std::string_view text) { return squeezed(text); });
  if (found.empty()) found = alike([](std::string_view text) { return lowerCase(squeezed(text)); });
  if (found.size() == 1) return found.front();
  if (!found.empty()) {
    refuse(quoteForMessage(name) + " may be one of several crops: " + listOf(found) +
           ". Write the name exactly.");
  }
  refuse("There is no crop " + quoteForMessage(name) + "." +
         (context.library.empty() ? " The library is empty."
                                  : " The crops are " + listOf(context.library) + "."));
}

/// Like cropNamed(), for crops that take part in the run.
std::string chosenCrop(std::string_view name, const WishContext& context) {
  std::string crop = cropNamed(name, context);
  if (!contains(context.chosen, crop))
    refuse("The crop " + quoteForMessage(crop) + " is not chosen, so no plan can have it.");
  return crop;
}

double amountOf(std::string_view word) {
  if (!isNumeric(word) || word.find(',') != std::string_view::npos)
    refuse(quoteForMessage(word) + " is not a number.");
  const double amount = toDouble(word);
  if (amount < 0) refuse("The number " + std::string(word) + " is negative.");
  return amount == 0 ? 0 : amount;  // replaces a negative zero
}

std::size_t fieldOf(std::string_view word, const WishContext& context) {
  if (word.find_first_not_of("0123456789") != std::string_view::npos) {
    if (isNumeric(word) && toDouble(word) < 0) refuse("The number " + std::string(word) + " is negative.");
    refuse(quoteForMessage(word) + " is not the number of a field.");
  }
  std::size_t field = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), field);
  if (error == std::errc() && field >= 1 && field <= context.fields) return field;
  refuse("The land split has no field " + std::string(word) + ". It has " +
         (context.fields == 1 ? "field 1 only." : "the fields 1 to " + std::to_string(context.fields) + "."));
}

/// Whether the words from `index` are "at least" (true) or "at most" (false); nothing for other words.
std::optional<bool> isLeast(const Words& words, std::size_t index) {
  if (!words.is(index, "at")) return std::nullopt;
  if (words.is(index + 1, "least")) return true;
  if (words.is(index + 1, "most")) return false;
  return std::nullopt;
}

/// Whether a word is the singular or plural of a unit.
bool isUnit(const Words& words, std::size_t index, std::string_view one, std::string_view several) {
  return words.is(index, one) || words.is(index, several);
}

using Reading = std::optional<Wish>;

/// at least N crops
Reading readCount(const Words& words, const WishContext& /*context*/) {
  const std::optional<bool> least = isLeast(words, 0);
  if (!least || words.count() != 4 || !isUnit(words, 3, "crop", "crops")) return std::nullopt;
  return Wish{*least ? Kind::cropsAtLeast : Kind::cropsAtMost, "", 0, amountOf(words.at(2))};
}

/// field K is not CROP
Reading readIsNot(const Words& words, const WishContext& context) {
  if (words.count() < 5 || !words.is(0, "field") || !words.is(2, "is") || !words.is(3, "not"))
    return std::nullopt;
  const std::size_t field = fieldOf(words.at(1), context);
  return Wish{Kind::fieldIsNot, cropNamed(words.between(4, words.count()), context), field, 0};
}

/// field K is CROP
Reading readIs(const Words& words, const WishContext& context) {
  if (words.count() < 4 || !words.is(0, "field") || !words.is(2, "is")) return std::nullopt;
  const std::size_t field = fieldOf(words.at(1), context);
  return Wish{Kind::fieldIs, chosenCrop(words.between(3, words.count()), context), field, 0};
}

/// field K at least N inches
Reading readDepth(const Words& words, const WishContext& context) {
  const std::optional<bool> least = isLeast(words, 2);
  if (!least || words.count() != 6 || !words.is(0, "field") || !isUnit(words, 5, "inch", "inches"))
    return std::nullopt;
  const std::size_t field = fieldOf(words.at(1), context);
  return Wish{*least ? Kind::depthAtLeast : Kind::depthAtMost, "", field, amountOf(words.at(4))};
}

/// CROP at least N acres. The name may contain any words, so this form is read from its end.
Reading readAcres(const Words& words, const WishContext& context) {
  if (words.count() < 5) return std::nullopt;
  const std::size_t name = words.count() - 4;
  const std::optional<bool> least = isLeast(words, name);
  if (!least || !isUnit(words, name + 3, "acre", "acres")) return std::nullopt;
  const double amount = amountOf(words.at(name + 2));
  const std::string_view crop = words.between(0, name);
  if (*least) return Wish{Kind::acresAtLeast, chosenCrop(crop, context), 0, amount};
  return Wish{Kind::acresAtMost, cropNamed(crop, context), 0, amount};
}

/// A text may fit several forms because a crop name can contain any words. The first form whose crop exists
/// is used.
constexpr std::array forms{readCount, readIsNot, readIs, readDepth, readAcres};

std::string counted(double amount, const char* one, const char* several) {
  return generalText(amount) + " " + (amount == 1 ? one : several);
}

}  // namespace

Wish readWish(std::string_view text, const WishContext& context) {
  const Words words(text);
  std::optional<std::string> problem;
  for (const auto& form : forms) {
    try {
      if (const Reading wish = form(words, context)) return *wish;
    } catch (const std::invalid_argument& error) {
      if (!problem) problem = error.what();
    }
  }
  refuse(problem.value_or(
      "This wish cannot be read. Wishes are such as \"Corn at least 40 acres\", \"Corn at most 40 acres\", "
      "\"field 1 is Corn\", \"field 1 is not Corn\", \"field 1 at least 6 inches\", \"field 1 at most 6 "
      "inches\", \"at least 2 crops\", \"at most 2 crops\"."));
}

std::string wishText(const Wish& wish) {
  const std::string field = "field " + std::to_string(wish.field) + " ";
  switch (wish.kind) {
    case Kind::acresAtLeast:
      return wish.crop + " at least " + counted(wish.amount, "acre", "acres");
    case Kind::acresAtMost:
      return wish.crop + " at most " + counted(wish.amount, "acre", "acres");
    case Kind::fieldIs:
      return field + "is " + wish.crop;
    case Kind::fieldIsNot:
      return field + "is not " + wish.crop;
    case Kind::depthAtLeast:
      return field + "at least " + counted(wish.amount, "inch", "inches");
    case Kind::depthAtMost:
      return field + "at most " + counted(wish.amount, "inch", "inches");
    case Kind::cropsAtLeast:
      return "at least " + counted(wish.amount, "crop", "crops");
    case Kind::cropsAtMost:
      break;
  }
  return "at most " + counted(wish.amount, "crop", "crops");
}

std::vector<std::string> wishTexts(const std::vector<Wish>& wishes) {
  std::vector<std::string> texts;
  texts.reserve(wishes.size());
  for (const Wish& wish : wishes)
    texts.push_back(wishText(wish));
  return texts;
}

void addWish(std::vector<Wish>& wishes, const Wish& wish) {
  if (std::find(wishes.begin(), wishes.end(), wish) != wishes.end()) return;
  if (wishes.size() == mostWishes) refuse("At most " + std::to_string(mostWishes) + " wishes can be made.");
  wishes.push_back(wish);
}

}  // namespace verdalis
