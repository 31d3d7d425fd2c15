#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "data/GeneralInputs.h"
#include "tests/data/Failure.h"
#include "tests/data/PlainTarget.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::failureOf;
using testing::PlainTarget;
using Events = std::vector<std::string>;

TEST(GeneralInputs, WritesFiveLinesWithoutAFinalLineEnd) {
  const GeneralInputs general{"2", "100", "12", "85", "16"};
  EXPECT_EQ(general.writeData(), "2\r\n100\r\n12\r\n85\r\n16");
  EXPECT_EQ(GeneralInputs().writeData(), "\r\n\r\n\r\n\r\n");
}

TEST(GeneralInputs, SetsItsControlsInOrder) {
  PlainTarget target;
  GeneralInputs{"2", "100", "12", "85", "16"}.setData(target);
  EXPECT_EQ(target.events, (Events{"txtAnnRain=16", "txtEff=85", "split 2", "txtArea=100", "txtMax=12"}));
}

TEST(GeneralInputs, SetsTextsUnchanged) {
  PlainTarget target;
  GeneralInputs{"", "a lot", " 1,200 ", "", "-3"}.setData(target);
  EXPECT_EQ(target.events,
            (Events{"txtAnnRain=-3", "txtEff=", "no split", "txtArea=a lot", "txtMax= 1,200 "}));
}

TEST(GeneralInputs, ReadsTheSplitIndexAsAWholeNumber) {
  for (const auto& [text, event] : {std::pair{"0", "split 0"},
                                    {"5", "split 5"},
                                    {" 4 ", "split 4"},
                                    {"2.5", "split 2"},
                                    {"3.5", "split 4"},
                                    {"-0.5", "split 0"},
                                    {"1e0", "split 1"}}) {
    PlainTarget target;
    GeneralInputs{text, "", "", "", ""}.setData(target);
    EXPECT_TRUE(target.has(event)) << text;
  }
}

TEST(GeneralInputs, FailsForAnUnknownSplitIndex) {
  for (const auto& [text, number] : {std::pair{"6", ErrorNumber::subscript},
                                     {"-1", ErrorNumber::subscript},
                                     {"5.6", ErrorNumber::subscript},
                                     {"x", ErrorNumber::typeMismatch},
                                     {" ", ErrorNumber::typeMismatch},
                                     {"3x", ErrorNumber::typeMismatch},
                                     {"32768", ErrorNumber::overflow},
                                     {"1e400", ErrorNumber::overflow}}) {
    PlainTarget target;
    const GeneralInputs general{text, "100", "12", "85", "16"};
    const auto message = failureOf(number, [&] { general.setData(target); });
    EXPECT_EQ(target.events, (Events{"txtAnnRain=16", "txtEff=85"})) << text;
    EXPECT_FALSE(message.empty());
  }
}

}  // namespace
}  // namespace verdalis
