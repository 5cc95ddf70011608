#include "cli/making_options.h"

#include "cli/measure_names.h"
#include "distance/frmCustomized.h"
#include "distance/frmOpcjeMacierzy.h"
#include "making/frmGenetic.h"
#include "making/frmGeneticUM.h"
#include "making/frmPrzedzal.h"

namespace dorvan::cli {

namespace {

struct RavelinOption {
    const char* Name;
    RavelinParameter Parameter;
    const char* Help;
};

constexpr RavelinOption RavelinOptions[] = {
    {"--sequence-change", RavelinParameter::SequenceChange, "weight of the operator (1)"},
    {"--fragment-transfer", RavelinParameter::FragmentTransfer, "weight of the operator (5)"},
    {"--some-single-transfers", RavelinParameter::SomeSingleTransfers, "weight of the operator (20)"},
    {"--single-transfer", RavelinParameter::SingleTransfer, "weight of the operator (50)"},
    {"--some-remote-conversions", RavelinParameter::SomeRemoteConversions, "weight of the operator (15)"},
    {"--remote-conversion", RavelinParameter::RemoteConversion, "weight of the operator (30)"},
    {"--some-neighbour-conversions", RavelinParameter::SomeNeighbourConversions,
     "weight of the operator (50)"},
    {"--neighbour-conversion", RavelinParameter::NeighbourConversion, "weight of the operator (200)"},
    {"--critical-mutation-number", RavelinParameter::CriticalMutationNumber,
     "mutations in a row without gain that end a generation (100)"},
    {"--critical-generation-number", RavelinParameter::CriticalGenerationNumber,
     "generations in a row without gain that end the run (10)"},
    {"--matrix-conversion-coefficient", RavelinParameter::MatrixConversionCoefficient,
     "what distances are multiplied by before rounding to 0..255 (1.0)"}};

// The place of a name, from 1.
std::int16_t NumberOf(const std::string& name, const std::vector<std::string>& names) {
    const auto found = std::find(names.begin(), names.end(), name);
    return static_cast<std::int16_t>(found - names.begin() + 1);
}

// A text that can be typed into a field of a dialog: of these keys, `most` at most.
std::function<std::string(const std::string&)> FieldText(std::string_view keys, std::size_t most,
                                                         std::function<void(const std::string&)> keep) {
    return [keys, most, keep = std::move(keep)](const std::string& text) -> std::string {
        const bool typed = !text.empty() && text.find_first_not_of(keys) == std::string::npos;
        if (!typed || text.size() > most) return "no number that its field takes: " + text;
        keep(text);
        return {};
    };
}

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view DigitsAndPoint = "0123456789.";
constexpr std::size_t DigitsOfMeasure = 3;
constexpr std::size_t Unlimited = std::string::npos;

void AddRavelin(Options& options, const RavelinOption& option, DiagramChoices& diagram) {
    const bool decimal = option.Parameter == RavelinParameter::MatrixConversionCoefficient;
    const auto keep = [&diagram, parameter = option.Parameter](const std::string& text) {
        diagram.Ravelin[parameter] = text;
    };
    options.Checked(option.Name, decimal ? "FLOAT" : "UINT",
                    FieldText(decimal ? DigitsAndPoint : Digits, Unlimited, keep), option.Help);
}

void AddParameter(Options& options, const char* name, std::string& parameter, const char* help) {
    const auto keep = [&parameter](const std::string& text) { parameter = text; };
    options.Checked(name, "UINT", FieldText(Digits, DigitsOfMeasure, keep), help);
}

} // namespace

void AddMeasure(Options& options, MeasureChoices& measure) {
    const auto take = [&measure](const std::string& text) {
        measure.Measure = MeasureNumber(text);
        return measure.Measure ? std::string() : "no such measure: " + text;
    };
    options.Checked("--measure", "TEXT:MEASURE", take,
                    "henzel, czekanowski, euclidean, manhattan, chebychev, customized, dfdd, lance-williams, "
                    "jaccard, yule, or its number 1 to 10 (euclidean)");
    AddParameter(options, "-p", measure.P, "exponent of the customized measure (2)");
    AddParameter(options, "-r", measure.R, "root of the customized measure (2)");
}

void AddDiagram(Options& options, DiagramChoices& diagram) {
    const std::vector<std::string> orders{"none", "simple", "genetic", "ravelin", "best"};
    const auto takeOrder = [&diagram, orders](const std::string& order) {
        diagram.BestOrder = order == orders.back();
        diagram.OrderMethod = NumberOf(diagram.BestOrder ? orders.front() : order, orders);
    };
    options.OneOf("--order", orders, takeOrder, "none, simple, genetic, ravelin or best (none)");
    options.Numbered("--type", diagram.DiagType, {"greyscale", "dots", "classic"},
                     "greyscale, dots or classic (dots)");
}

void AddSearches(Options& options, DiagramChoices& diagram) {
    options.Under("Simple genetic algorithm");
    options.OneOf("--generations", diagram.Genetic.Generations, frmGenetic::Generations(),
                  "number of generations (250)");
    options.OneOf("--variants", diagram.Genetic.Variants, frmGenetic::Variants(),
                  "number of variants a generation (30)");
    options.Under("Ravelin genetic algorithm");
    for (const auto& option : RavelinOptions) AddRavelin(options, option, diagram);
    options.Under("");
}

void AnswerMeasure(CliPlatform& ports, const MeasureChoices& measure) {
    ports.OnDialog<frmOpcjeMacierzy>([&measure](frmOpcjeMacierzy& form) {
        form.Enter(measure);
        form.Command2_Click();
    });
    ports.OnDialog<frmCustomized>([&measure](frmCustomized& form) {
        form.Enter(measure);
        form.Command1_Click();
    });
}

void AnswerDiagram(CliPlatform& ports, const DiagramChoices& diagram) {
    AnswerMeasure(ports, diagram.Measure);
    ports.OnDialog<frmPrzedzal>([&diagram](frmPrzedzal& form) {
        form.Enter(diagram);
        form.Command3_Click();
    });
    ports.OnDialog<frmGenetic>([&diagram](frmGenetic& form) {
        form.Enter(diagram.Genetic);
        form.Command1_Click();
    });
    ports.OnDialog<frmGeneticUM>([&diagram](frmGeneticUM& form) {
        form.Enter(diagram.Ravelin);
        form.Command1_Click();
    });
}

} // namespace dorvan::cli
