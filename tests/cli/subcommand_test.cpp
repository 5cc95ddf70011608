#include "cli/run.h"
#include "cli/subcommands.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <set>

namespace dorvan::cli {
namespace {

const Option& OptionNamed(const Options& options, const std::string& name) {
    for (const auto& option : options.All())
        if (option.Name == name) return option;
    throw std::logic_error("no option " + name);
}

TEST(Options, ATextIsKept) {
    std::string sheet;
    std::string p;
    Options options;
    options.Argument("SHEET", sheet, "a sheet");
    options.Text("-p", p, "an exponent");
    EXPECT_TRUE(OptionNamed(options, "SHEET").IsArgument());
    EXPECT_FALSE(OptionNamed(options, "-p").IsArgument());
    EXPECT_EQ(OptionNamed(options, "SHEET").Take("a.mdt"), "");
    EXPECT_EQ(OptionNamed(options, "-p").Take(""), "");
    EXPECT_EQ(sheet, "a.mdt");
    EXPECT_EQ(p, "");
}

TEST(Options, ANumberIsWholeInItsRangeAndFits) {
    std::optional<std::uint16_t> seed;
    std::optional<int> page;
    Options options;
    options.Number("--seed", seed, "a seed");
    options.Number<int>("--page", page, "a page", [](int number) { return number > 5; });
    const auto& takeSeed = OptionNamed(options, "--seed").Take;
    EXPECT_EQ(OptionNamed(options, "--seed").Type, "UINT");
    EXPECT_EQ(OptionNamed(options, "--page").Type, "INT");
    for (const auto* wrong : {"", "x", "1x", "1.5", "-1", "65536", " 1"})
        EXPECT_NE(takeSeed(wrong), "") << wrong;
    EXPECT_FALSE(seed);
    EXPECT_EQ(takeSeed("65535"), "");
    EXPECT_EQ(seed, 65535);
    EXPECT_NE(OptionNamed(options, "--page").Take("5"), "");
    EXPECT_FALSE(page);
    EXPECT_EQ(OptionNamed(options, "--page").Take("6"), "");
    EXPECT_EQ(page, 6);
}

TEST(Options, ADecimalHasAPointAndStaysInItsRange) {
    double scale = 1;
    Options options;
    options.Decimal("--scale", scale, 0.5, 16, "a factor");
    const auto& take = options.All().front().Take;
    EXPECT_EQ(options.All().front().Type, "FLOAT");
    for (const auto* wrong : {"", "x", "1,5", "1.5x", "0.49", "16.1", "nan"})
        EXPECT_NE(take(wrong), "") << wrong;
    EXPECT_EQ(scale, 1);
    const std::pair<const char*, double> right[] = {{"0.5", 0.5}, {"16", 16}, {"1.25", 1.25}};
    for (const auto& [text, value] : right) {
        EXPECT_EQ(take(text), "");
        EXPECT_EQ(scale, value);
    }
}

TEST(Options, AFlagHasNoTextAndIsSetByBeingThere) {
    bool yes = false;
    Options options;
    options.Flag("-y,--yes", yes, "yes");
    EXPECT_TRUE(options.All().front().IsFlag());
    EXPECT_EQ(options.All().front().Take(""), "");
    EXPECT_TRUE(yes);
}

TEST(Options, OneOfKeepsItsChoicesAndAHeadingHoldsUntilTheNext) {
    std::string order;
    std::string other;
    Options options;
    options.Under("Orders");
    options.OneOf("--order", order, {"none", "simple"}, "an order");
    options.Under("");
    options.Text("--other", other, "another");
    const auto& option = OptionNamed(options, "--order");
    EXPECT_EQ(option.OneOf, (std::vector<std::string>{"none", "simple"}));
    EXPECT_EQ(option.Group, "Orders");
    EXPECT_EQ(option.Take("simple"), "");
    EXPECT_EQ(order, "simple");
    EXPECT_EQ(OptionNamed(options, "--other").Group, "");
    EXPECT_FALSE(option.IsFlag());
}

// `group` is what stands before the names, such as "import ".
void ExpectComplete(const std::vector<Subcommand>& subcommands, const std::string& group) {
    std::set<std::string> names;
    for (const auto& subcommand : subcommands) {
        const std::string name = group + subcommand.Name;
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_NE(subcommand.Help, "") << name;
        EXPECT_NE(bool(subcommand.Run), !subcommand.Inner.empty()) << name;
        ExpectComplete(subcommand.Inner, name + " ");
        if (subcommand.Inner.empty()) {
            EXPECT_NE(subcommand.Footer.find("dorvan-cli " + name + " "), std::string::npos) << name;
        }
        std::set<std::string> options;
        for (const auto& option : subcommand.Takes.All()) {
            EXPECT_TRUE(options.insert(option.Name).second) << option.Name;
            EXPECT_NE(option.Help, "") << option.Name;
        }
    }
}

TEST(Subcommands, EachHasANameOfItsOwnHelpAnExampleAndItsWork) {
    EXPECT_FALSE(Subcommands().empty());
    ExpectComplete(Subcommands(), "");
}

TEST(Reported, AMemoryThatDoesNotSufficeIsNamed) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Reported("f.dgr", [] { throw std::bad_alloc(); }), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "dorvan-cli: f.dgr: The memory does not suffice\n");
}

} // namespace
} // namespace dorvan::cli
