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

} // namespace

void AddMeasure(Options& options, MeasureChoices& measure) {
    const auto take = [&measure](const std::string& text) {
        measure.Measure = MeasureNumber(text);
        return measure.Measure ? std::string() : "no such measure: " + text;
    };
    options.Checked("--measure", "TEXT:MEASURE", take,
                    "henzel, czekanowski, euclidean, manhattan, chebychev, customized, dfdd, lance-williams, "
                    "jaccard, yule, or its number 1 to 10 (euclidean)");
    options.Text("-p", measure.P, "exponent of the customized measure (2)");
    options.Text("-r", measure.R, "root of the customized measure (2)");
}

void AddDiagram(Options& options, DiagramChoices& diagram) {
    options.Numbered("--order", diagram.OrderMethod, {"none", "simple", "genetic", "ravelin"},
                     "none, simple, genetic or ravelin (none)");
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
    for (const auto& option : RavelinOptions)
        options.Checked(
            option.Name, "TEXT",
            [&diagram, parameter = option.Parameter](const std::string& text) {
                diagram.Ravelin[parameter] = text;
                return std::string();
            },
            option.Help);
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
