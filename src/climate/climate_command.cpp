#include "climate/climate_command.h"

#include <algorithm>
#include <map>
#include <optional>
#include <ostream>

#include "climate/climate_input.h"
#include "climate/climate_writer.h"
#include "climate/epw_file.h"
#include "climate/epw_year.h"
#include "climate/month_summary.h"
#include "climate/normals_table.h"
#include "climate/synthetic_year.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace verandis {
namespace {

constexpr int kDone = 0;
constexpr int kWrongUse = 1;
constexpr int kRefused = 2;
constexpr std::size_t kMostDoubtsOfKind = 25;

constexpr const char* kHelp =
    R"(verandis-climate makes the climate files of Verandis: BASES.dat with the months and the
radiation on tilted planes, and BASED.cli with the hours of the year.

Usage:
  verandis-climate normals FILE OUTDIR [--sky perez|isotropic] [--quiet]
  verandis-climate epw FILE.epw BASE OUTDIR [--sky perez|isotropic] [--quiet]
  verandis-climate --help

  normals   makes a synthetic year from a text table of monthly normals
  epw       takes the hours of an EPW weather file
  --sky     how light spreads over the sky: perez (default) or isotropic
  --quiet   shows no table of months

BASE is at most 11 characters, upper case, with a "_": STOCKHOLM_1.
Exit code: 0 done, 1 wrong use, 2 the input cannot be used or a file cannot be written.
)";

struct Request {
    std::vector<std::string> words;  // command and its arguments, without options
    SkyModel sky = SkyModel::Perez;
    bool help = false;
    bool quiet = false;
    std::string complaint;
};

std::optional<SkyModel> SkyNamed(const std::string& name) {
    if (name == "perez") return SkyModel::Perez;
    if (name == "isotropic") return SkyModel::Isotropic;
    return std::nullopt;
}

Request ParseRequest(const std::vector<std::string>& args) {
    const std::string skyOption = "--sky";
    Request request;
    for (std::size_t at = 0; at < args.size(); ++at) {
        const std::string& word = args[at];
        if (word == "--help" || word == "-h") {
            request.help = true;
        } else if (word == "--quiet") {
            request.quiet = true;
        } else if (word == skyOption || word.starts_with(skyOption + "=")) {
            std::string name = word.substr(std::min(word.size(), skyOption.size() + 1));
            if (word == skyOption && ++at < args.size()) name = args[at];
            const auto sky = SkyNamed(name);
            if (!sky) request.complaint = "--sky takes perez or isotropic, not " + Quoted(name);
            request.sky = sky.value_or(request.sky);
        } else if (word.starts_with("--")) {
            request.complaint = "the option " + Quoted(word) + " is not known";
        } else {
            request.words.push_back(word);
        }
    }
    return request;
}

/// Lines of a file from outside the system, which may be UTF-8 or Windows-1252.
std::optional<std::vector<std::string>> ReadForeignLines(const std::string& path) {
    auto lines = ReadUtf8Lines(path);
    if (!lines) return std::nullopt;
    const bool utf8 = std::all_of(lines->begin(), lines->end(), IsUtf8);
    return utf8 ? lines : ReadLines(path);
}

class ClimateRun {
public:
    ClimateRun(const Request& request, std::ostream& out, std::ostream& err)
        : request_(request), out_(out), err_(err) {}

    int Normals(const std::string& file, const std::string& folder) {
        const auto lines = ReadForeignLines(file);
        if (!lines) return Unreadable(file);
        const NormalsReading reading = ReadNormals(*lines);
        if (reading.fault) return Refuse(FaultText(file, *reading.fault));
        const auto sun = SunOfYear(reading.table.site);
        SyntheticYear synthetic = MakeSyntheticYear(reading.table, sun);
        if (synthetic.fault) return Refuse(FaultText(file, *synthetic.fault));
        return ShowAndWrite(std::move(synthetic.year), sun, reading.table.base, folder, {});
    }

    int Epw(const std::string& file, const std::string& base, const std::string& folder) {
        const std::string refusal = CheckBaseName(base);
        if (!refusal.empty()) {
            err_ << "verandis-climate: " << refusal << "\n";
            return kWrongUse;
        }
        const auto lines = ReadForeignLines(file);
        if (!lines) return Unreadable(file);
        const EpwReading reading = ReadEpw(*lines);
        if (reading.fault) return Refuse(FaultText(file, *reading.fault));
        const auto sun = SunOfYear(reading.site);
        EpwYear epw = MakeEpwYear(reading, sun);
        if (epw.fault) return Refuse(FaultText(file, *epw.fault));
        epw.year.source += " " + std::string(NameOf(file));
        return ShowAndWrite(std::move(epw.year), sun, base, folder, epw.doubts);
    }

private:
    const Request& request_;
    std::ostream& out_;
    std::ostream& err_;

    int Refuse(const std::string& sentence) {
        err_ << "verandis-climate: " << sentence << "\n";
        return kRefused;
    }

    int Unreadable(const std::string& file) { return Refuse(file + ": cannot be opened"); }

    int ShowAndWrite(WeatherYear weather, const std::vector<SunHour>& sun, const std::string& base,
                     const std::string& folder, const std::vector<ClimateDoubt>& doubts) {
        const ClimateYear year = SummarizeYear(std::move(weather), sun, request_.sky);
        if (!request_.quiet) ShowMonths(year);
        ShowDoubts(doubts);
        const std::string failed = WriteClimatePair(year, base, folder);
        if (!failed.empty()) return Refuse(failed + ": cannot be written");
        if (request_.quiet) return kDone;
        for (const char* end : {"S.dat", "D.cli"}) {
            out_ << "Written: " << TrueSpelling(JoinPath(folder, base + end)) << "\n";
        }
        return kDone;
    }

    void ShowMonths(const ClimateYear& year) {
        out_ << year.weather.site.place << "\n";
        for (const std::string& line : MonthTable(year.months)) out_ << line << "\n";
    }

    /// The first of each kind, so that a long gap does not hide a single odd value.
    void ShowDoubts(const std::vector<ClimateDoubt>& doubts) {
        if (doubts.empty()) return;
        out_ << "Doubtful values: " << doubts.size() << "\n";
        std::map<std::string, std::size_t> counts;
        for (const ClimateDoubt& doubt : doubts) {
            if (++counts[doubt.field + ": " + doubt.reason] > kMostDoubtsOfKind) continue;
            out_ << "  line " << doubt.line << ", field " << doubt.field << ", value "
                 << Quoted(doubt.value) << ": " << doubt.reason << "\n";
        }
        for (const auto& [kind, count] : counts) {
            if (count <= kMostDoubtsOfKind) continue;
            out_ << "  ... and " << count - kMostDoubtsOfKind << " more, field " << kind << "\n";
        }
    }
};

}  // namespace

int RunClimateCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    const Request request = ParseRequest(args);
    if (request.help) {
        out << kHelp;
        return kDone;
    }
    const auto& words = request.words;
    std::string complaint = request.complaint;
    if (complaint.empty()) {
        ClimateRun run(request, out, err);
        if (words.size() == 3 && words[0] == "normals") return run.Normals(words[1], words[2]);
        if (words.size() == 4 && words[0] == "epw") return run.Epw(words[1], words[2], words[3]);
        complaint = words.empty() ? "a command is needed: normals or epw"
                                  : "this is not a command with the arguments it takes";
    }
    err << "verandis-climate: " << complaint << "\nverandis-climate --help tells the use\n";
    return kWrongUse;
}

}  // namespace verandis
