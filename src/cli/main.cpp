#include "cli/commands.h"
#include "cli/manual_page.h"
#include "numbers/code_page.h"
#include "session/session.h"

#include <CLI/CLI.hpp>

#include <clocale>
#include <cstdio>

using namespace dorvan;
using namespace dorvan::cli;

namespace {

constexpr int WrongUsage = 2;

// A reason for refusal, or nothing, as CLI11 wants it.
const auto IsMeasure = CLI::Validator(
    [](std::string& text) { return MeasureNumber(text) ? std::string() : "no such measure: " + text; },
    "MEASURE");
const auto IsKnownCodePage = CLI::Validator(
    [](std::string& text) {
        int number = 0;
        return CLI::detail::lexical_cast(text, number) && IsCodePage(number) ? std::string()
                                                                             : "no such code page: " + text;
    },
    "PAGE");

struct Arguments {
    std::string input;
    std::string output;
    Choices choices;
    PictureChoices picture;
    Surroundings surroundings;
};

void AddCodePage(CLI::App& command, Arguments& arguments) {
    command
        .add_option("--code-page", arguments.surroundings.codePage,
                    "code page of files: 1250 to 1258 or 874 (from the locale)")
        ->check(IsKnownCodePage);
}

void AddYes(CLI::App& command, Arguments& arguments) {
    command.add_flag("-y,--yes", arguments.surroundings.yes,
                     "open a sheet with empty fields, as empty cells (refused)");
}

void AddMeasure(CLI::App& command, Arguments& arguments) {
    command
        .add_option("--measure", arguments.choices.measure,
                    "henzel, czekanowski, euclidean, manhattan, chebychev, customized, dfdd, lance-williams, "
                    "jaccard, "
                    "yule, or its number 1 to 10 (euclidean)")
        ->check(IsMeasure);
    command.add_option("-p", arguments.choices.parameterP, "exponent of the customized measure (2)");
    command.add_option("-r", arguments.choices.parameterR, "root of the customized measure (2)");
}

void AddGenetic(CLI::App& command, Arguments& arguments) {
    const std::string group = "Simple genetic algorithm";
    command.add_option("--generations", arguments.choices.generations, "number of generations (250)")
        ->check(CLI::IsMember({"2000", "1500", "1000", "750", "500", "250", "100"}))
        ->group(group);
    command.add_option("--variants", arguments.choices.variants, "number of variants a generation (30)")
        ->check(CLI::IsMember({"10", "20", "30", "40", "50"}))
        ->group(group);
}

void AddRavelin(CLI::App& command, Arguments& arguments) {
    struct Parameter {
        const char* option;
        const char* field;
        const char* help;
    };
    static constexpr Parameter parameters[] = {
        {"--sequence-change", "Text1", "weight of the operator (1)"},
        {"--fragment-transfer", "Text2", "weight of the operator (5)"},
        {"--some-single-transfers", "Text3", "weight of the operator (20)"},
        {"--single-transfer", "Text4", "weight of the operator (50)"},
        {"--some-remote-conversions", "Text5", "weight of the operator (15)"},
        {"--remote-conversion", "Text6", "weight of the operator (30)"},
        {"--some-neighbour-conversions", "Text7", "weight of the operator (50)"},
        {"--neighbour-conversion", "Text8", "weight of the operator (200)"},
        {"--critical-mutation-number", "Text9",
         "mutations in a row without gain that end a generation (100)"},
        {"--critical-generation-number", "Text10", "generations in a row without gain that end the run (10)"},
        {"--matrix-conversion-coefficient", "Text11",
         "what distances are multiplied by before rounding to 0..255 (1.0)"}};
    for (const auto& parameter : parameters)
        command
            .add_option_function<std::string>(
                parameter.option,
                [&arguments, &parameter](const std::string& text) {
                    arguments.choices.ravelin[parameter.field] = text;
                },
                parameter.help)
            ->group("Ravelin genetic algorithm");
}

void AddMatrix(CLI::App& app, Arguments& arguments) {
    auto* command =
        app.add_subcommand("matrix", "Make a matrix of distances from a data sheet (2 to 150 records)");
    command->add_option("SHEET", arguments.input, "data sheet (.mdt)")->required();
    command->add_option("OUT", arguments.output, "matrix to write (.mtx)")->required();
    AddMeasure(*command, arguments);
    AddYes(*command, arguments);
    AddCodePage(*command, arguments);
    command->footer("Examples:\n"
                    "  dorvan-cli matrix iris.mdt iris.mtx\n"
                    "  dorvan-cli matrix Townships.mdt Townships.mtx --measure jaccard\n"
                    "  dorvan-cli matrix USArrests.mdt cubic.mtx --measure customized -p 3 -r 3");
}

void AddDiagram(CLI::App& app, Arguments& arguments) {
    auto* command =
        app.add_subcommand("diagram", "Make a diagram from a data sheet or a matrix (3 to 250 records)");
    command->add_option("INPUT", arguments.input, "data sheet (.mdt) or matrix (.mtx)")->required();
    command->add_option("OUT", arguments.output, "diagram to write (.dgr)")->required();
    AddMeasure(*command, arguments);
    command->add_option("--order", arguments.choices.order, "none, simple, genetic or ravelin (none)")
        ->check(CLI::IsMember({"none", "simple", "genetic", "ravelin"}));
    command->add_option("--type", arguments.choices.type, "greyscale, dots or classic (dots)")
        ->check(CLI::IsMember({"greyscale", "dots", "classic"}));
    command->add_option("--seed", arguments.surroundings.seed, "seed of the random numbers (from the clock)");
    AddGenetic(*command, arguments);
    AddRavelin(*command, arguments);
    AddYes(*command, arguments);
    AddCodePage(*command, arguments);
    command->footer(
        "Ctrl+C once ends a search early: the best order so far is used and the file written. On a table "
        "that\n"
        "stands in its best order already, the Ravelin search may find no end by itself.\n\n"
        "Examples:\n"
        "  dorvan-cli diagram USArrests.mdt USArrests.dgr --order simple\n"
        "  dorvan-cli diagram Munsingen.mdt graves.dgr --measure jaccard --order ravelin --seed 1 "
        "--matrix-conversion-coefficient 100\n"
        "  dorvan-cli diagram airquality.mdt air.dgr --measure henzel --type greyscale\n"
        "  dorvan-cli diagram iris.mtx iris.dgr --order genetic --generations 100 --variants 10");
}

void AddConvert(CLI::App& app, Arguments& arguments) {
    auto* command = app.add_subcommand("convert", "Read a document of any age and write the current format");
    command->add_option("IN", arguments.input, "document (.mdt, .mtx or .dgr)")->required();
    command->add_option("OUT", arguments.output, "document of the same kind")->required();
    AddYes(*command, arguments);
    AddCodePage(*command, arguments);
    command->footer("Examples:\n"
                    "  dorvan-cli convert old.dgr new.dgr\n"
                    "  LC_ALL=pl_PL.UTF-8 dorvan-cli convert point.mdt comma.mdt");
}

void AddInfo(CLI::App& app, Arguments& arguments) {
    auto* command = app.add_subcommand("info", "Tell what a document holds, one `key: value` a line");
    command->add_option("FILE", arguments.input, "document (.mdt, .mtx or .dgr)")->required();
    AddYes(*command, arguments);
    AddCodePage(*command, arguments);
    command->footer("Example:\n  dorvan-cli info USArrests.dgr");
}

const auto IsPicture = CLI::Validator(
    [](std::string& path) { return IsPictureName(path) ? std::string() : "no .svg, .pdf or .png: " + path; },
    "");

void AddPicture(CLI::App& app, Arguments& arguments) {
    auto* command = app.add_subcommand("picture", "Draw a diagram, or a graph of it");
    command->add_option("DIAGRAM", arguments.input, "diagram (.dgr)")->required();
    command->add_option("OUT", arguments.output, "picture to write (.svg, .pdf or .png)")
        ->required()
        ->check(IsPicture);
    command->add_option("--what", arguments.picture.what, "diagram, histogram or linear (diagram)")
        ->check(CLI::IsMember({"diagram", "histogram", "linear"}));
    command->add_flag("--cumulative", arguments.picture.cumulative, "running sums in the histogram");
    command->add_option("--scale", arguments.picture.scale, "times the size on a screen, 0.1 to 16 (1)")
        ->check(CLI::Range(0.1, 16.0));
    AddCodePage(*command, arguments);
    command->footer("Examples:\n"
                    "  dorvan-cli picture USArrests.dgr USArrests.svg\n"
                    "  dorvan-cli picture USArrests.dgr USArrests.png --scale 2\n"
                    "  dorvan-cli picture USArrests.dgr sections.pdf --what histogram --cumulative");
}

int Run(const CLI::App& app, const Arguments& arguments) {
    const auto& [input, output, choices, picture, surroundings] = arguments;
    if (app.got_subcommand("matrix")) return RunMatrix(input, output, choices, surroundings);
    if (app.got_subcommand("diagram")) return RunDiagram(input, output, choices, surroundings);
    if (app.got_subcommand("convert")) return RunConvert(input, output, surroundings);
    if (app.got_subcommand("info")) return RunInfo(input, surroundings);
    return RunPicture(input, output, picture, surroundings);
}

} // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    Arguments arguments;
    CLI::App app("Dorvan without a screen: tables of similarities to matrices and Czekanowski's diagrams");
    app.set_version_flag("--version", MainCaption(Version{}));
    app.require_subcommand(1);
    AddMatrix(app, arguments);
    AddDiagram(app, arguments);
    AddConvert(app, arguments);
    AddInfo(app, arguments);
    AddPicture(app, arguments);
    app.footer("dorvan-cli SUBCOMMAND --help shows options and examples.\n"
               "Exit status: 0 done, 1 refused or failed, 2 wrong usage.");
    app.add_flag_callback(
           "--manual",
           [&app] {
               std::fputs(ManualPage(app, MainCaption(Version{}), DORVAN_RELEASE_DATE).c_str(), stdout);
               throw CLI::Success();
           },
           "print the manual page, in roff")
        ->group("");
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& done) {
        return app.exit(done);
    } catch (const CLI::ParseError& error) {
        std::fprintf(stderr, "dorvan-cli: %s\n", error.what());
        return WrongUsage;
    }
    return Run(app, arguments);
}
