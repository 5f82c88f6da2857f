#include "library/settings_report.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "link/json.h"
#include "link/port_log.h"
#include "platform/files.h"
#include "platform/profile_file.h"

namespace merovane::library {
namespace {

using platform::ProfileFile;

// Belongs to boot mode, and says nothing to this library.
constexpr std::string_view kForeignSection = "Download IMEI";

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool NamesSection(const SettingKey& key, std::string_view section) {
  return ProfileFile::SameName(key.section, section);
}

bool Names(const SettingKey& key, const ProfileFile::Entry& entry) {
  return NamesSection(key, entry.section) && ProfileFile::SameName(key.key, entry.key);
}

// What holds now, where a program can have changed it since the file was read.
std::optional<std::uint32_t> SwitchedNow(const LinkEnvironment& environment,
                                         const CallRecorder& recorder, std::string_view key) {
  const ChannelServer& server = environment.server;
  if (key == setting::kConnectServer.key) {
    return server.IsConnected() || server.WhyNot() != ChannelServer::Missing::Nothing;
  }
  if (key == setting::kBigEndian.key) return environment.settings.Order().IsBig();
  if (key == setting::kUsefulLog.key) return environment.settings.usefulLog;
  if (key == setting::kTrace.key) return recorder.Trace();
  return std::nullopt;
}

std::uint32_t SwitchedBy(std::uint32_t number, std::string_view key) {
  return key == setting::kTrace.key ? TraceOfSetting(number) : number != 0 ? 1 : 0;
}

class Report {
 public:
  Report(const LinkEnvironment& environment, const CallRecorder& recorder)
      : environment_(environment),
        recorder_(recorder),
        path_(environment.settings.File()),
        file_(ProfileFile::Load(path_)) {}

  std::string Text() {
    std::error_code ignored;
    json_.BeginObject();
    json_.Key("file").Text(Utf8(path_));
    json_.Key("found").Flag(std::filesystem::is_regular_file(path_, ignored));
    json_.Key("settings").BeginArray();
    for (const SettingKey& key : setting::kAll) Setting(key);
    json_.EndArray();
    json_.Key("problems").BeginArray();
    for (const ProfileFile::Entry& entry : file_.Entries()) Look(entry);
    LookAtLogFolder();
    LookAtTrace();
    LookAtServer();
    json_.EndArray().EndObject();
    return text_;
  }

 private:
  void Setting(const SettingKey& key) {
    std::string value = file_.Text(key.section, key.key, "");
    const char* source = value.empty() ? "default" : "file";
    if (value.empty()) value = key.fallback;
    if (key.isNumber) {
      const auto number =
          file_.Integer(key.section, key.key, static_cast<std::uint32_t>(std::atoi(key.fallback)));
      const auto now = SwitchedNow(environment_, recorder_, key.key);
      if (now && *now != SwitchedBy(number, key.key)) {
        value = std::to_string(*now);
        source = "program";
      }
    }
    json_.BeginObject();
    json_.Key("section").Text(key.section).Key("key").Text(key.key);
    json_.Key("value").Text(value).Key("source").Text(source);
    json_.EndObject();
  }

  void Problem(const ProfileFile::Entry& about, std::string_view text) {
    json_.BeginObject();
    json_.Key("section").Text(about.section).Key("key").Text(about.key);
    json_.Key("value").Text(about.value).Key("text").Text(text);
    json_.EndObject();
  }

  void Look(const ProfileFile::Entry& entry) {
    if (ProfileFile::SameName(entry.section, kForeignSection)) return;
    const bool knownSection = std::ranges::any_of(
        setting::kAll, [&](const SettingKey& key) { return NamesSection(key, entry.section); });
    if (entry.key.empty()) {
      if (!knownSection) Problem(entry, "There is no such section; what stands in it is not read.");
      return;
    }
    if (!knownSection) return;
    const auto key =
        std::ranges::find_if(setting::kAll, [&](const SettingKey& k) { return Names(k, entry); });
    if (key == setting::kAll.end()) {
      Problem(entry, "There is no such key in this section; it is not read.");
    } else if (!entry.counts) {
      Problem(entry, "Another value stands before it, which counts.");
    } else if (key->isNumber && !entry.value.empty() && !ProfileFile::IsInteger(entry.value)) {
      const auto number = file_.Integer(entry.section, entry.key, 0);
      Problem(entry, "It is no number, and counts as " +
                         std::to_string(static_cast<std::int32_t>(number)) + ".");
    }
  }

  void LookAtLogFolder() {
    const LinkSettings& settings = environment_.settings;
    const bool traces = recorder_.Trace() != MEROVANE_TRACE_OFF;
    if (!settings.usefulLog && !settings.allLog && !traces) return;
    const std::filesystem::path folder = PortLog::FolderOfToday(settings.Folder());
    if (platform::CanMakeFilesIn(folder)) return;
    Problem({setting::kUsefulLog.section, "", "", true},
            "No log can be written into " + Utf8(folder) +
                ": it cannot be made, or this user may not write there.");
  }

  void LookAtTrace() {
    const auto problem = [&](const TraceFiles::Gap& gap, std::uint64_t lines, const char* why) {
      if (lines == 0) return;
      Problem({setting::kTrace.section, setting::kTrace.key, "", true},
              std::to_string(lines) + " lines are missing in " + Utf8(gap.file) + ": " + why);
    };
    for (const TraceFiles::Gap& gap : recorder_.Gaps()) {
      problem(gap, gap.unwritten,
              "they could not be written. Look for room on its disk, and who may write there.");
      problem(gap, gap.overrun, "calls came faster than they could be written.");
    }
  }

  void LookAtServer() {
    if (!environment_.settings.connectServer || environment_.server.IsConnected()) return;
    const ProfileFile::Entry about{setting::kConnectServer.section, setting::kConnectServer.key,
                                   "1", true};
    const std::string port = std::to_string(environment_.settings.serverPort);
    switch (environment_.server.WhyNot()) {
      case ChannelServer::Missing::Library:
        Problem(about,
                "The socket library Tollvane cannot be loaded: it is not beside Merovane, or is "
                "made for programs of the other word size.");
        break;
      case ChannelServer::Missing::Server:
        Problem(about, "No channel server can be reached at port " + port + " of this machine.");
        break;
      case ChannelServer::Missing::Nothing:
        Problem(about, "A program has switched the channel server off.");
        break;
    }
  }

  const LinkEnvironment& environment_;
  const CallRecorder& recorder_;
  const std::filesystem::path path_;
  const ProfileFile file_;
  std::string text_;
  JsonWriter json_{text_};
};

}  // namespace

std::string SettingsReport(const LinkEnvironment& environment, const CallRecorder& recorder) {
  return Report(environment, recorder).Text();
}

}  // namespace merovane::library
