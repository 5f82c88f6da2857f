// One loaded NV project.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "link/result.h"
#include "nvproject/calibration_parameters.h"
#include "nvproject/item_store.h"
#include "nvproject/item_values.h"
#include "nvproject/key_reader.h"
#include "nvproject/layout.h"
#include "nvproject/nv_image.h"

namespace merovane::nvproject {

// Takes a line for the log of the port that the project belongs to.
using LogLine = std::function<void(std::string_view)>;

// Holds the whole project in memory from its load on; nothing goes to disk unless it is saved.
// Texts longer than their fields are cut. Not for use by several threads at once.
class CFileParser {
 public:
  // Tests read from elsewhere than the disk.
  explicit CFileParser(OpenText openText = OpenRegularFile);
  CFileParser(const CFileParser&) = delete;
  CFileParser& operator=(const CFileParser&) = delete;

  // Reads the project file and every module file that it names; false when one of them cannot be
  // opened, or when there is none. A TARGET or MODULE value that is not absolute counts from the
  // project file's directory. When the project's path has none, reading ends there, successfully,
  // with the file left open: the parser then refuses to read or to create.
  bool LoadProject(std::string_view path);
  // What reading has found wrong, in the order of reading; none when the project file itself cannot
  // be opened.
  std::span<const Problem> Problems() const { return problems_; }

  // Writes the file of a new project that has no modules yet.
  bool CreateProject(std::string_view name, std::string_view path, std::string_view target,
                     std::string_view description);
  // Writes the project file and every module file, each to where it was read from. False when the
  // project file cannot be written; module files that cannot are passed over.
  bool SaveProject();
  bool SaveModule(std::size_t module);

  const ProjectRecord& Project() const { return project_; }
  std::span<const ModuleRecord> Modules() const { return modules_; }
  ItemStore& Items() { return items_; }
  const ItemStore& Items() const { return items_; }
  // Whether contents have changed since the project was last read or written whole.
  bool Changed() const { return items_.Changed(); }
  // Which of the two spellings the project uses for its AFC structure.
  bool HasAreoSpelling() const { return areoSpelling_; }

  // By full path, letter case ignored; the first item in load order answers, whatever module is
  // given. False when there is none. `content` may be null.
  bool GetItemContent(std::uint32_t module, std::string_view path, std::string* content);
  bool SetItemContent(std::uint32_t module, std::string_view path, std::string_view content);
  // Elements by the prefix of their paths. Missing ones repeat the one before, or are not written.
  void GetItemArray(std::string_view prefix, std::span<std::int16_t> values, IndexNotation first,
                    std::uint32_t module);
  void SetItemArray(std::string_view prefix, std::span<const std::int16_t> values,
                    IndexNotation first, std::uint32_t module);

  CalibrationParameters& Calibration() { return calibration_; }

  // Gives items their offsets and lengths, and the list of top-level items.
  void LayoutItems() { layout_.Run(items_); }
  std::span<const TopLevelItem> TopLevelItems() const { return layout_.TopLevel(); }
  // The offset of the item of that path, letter case counted; none when there is no such item.
  std::optional<std::uint32_t> ItemOffset(std::string_view path);
  // See nv_image.h.
  void ConvertBlock(std::string_view path, std::span<std::uint8_t> data);

  // Builds the image: BufferTooSmall when it passes its 65,536 bytes, the buffer left as it was;
  // else all of the buffer is written.
  Result GenerateImage(std::span<std::uint8_t, kImageCapacity> buffer, std::uint32_t& length,
                       const ImageContext& context);

  // Writes the image to the project's target. With the path of a DSP code file, that code comes
  // ahead of the items. Of a file that cannot be read or written a message box tells, and nothing
  // else.
  Result SaveImage(const ImageContext& context, std::string_view dspCodePath = {});
  void SetTarget(std::string_view path) { project_.target = path.substr(0, kMaxFilePath); }

 private:
  enum class Reading { Done, Failed, LeftOpen };

  Reading ReadProject(KeyReader& lines);
  // A TARGET or MODULE line.
  Reading TakePath(KeyReader& lines, std::string_view key);
  bool LoadModule(const std::string& path);

  OpenText openText_;
  ProjectRecord project_;
  std::vector<ModuleRecord> modules_;
  ItemStore items_;
  std::vector<Problem> problems_;
  std::unique_ptr<KeyReader> projectStream_;  // while the project file is open
  bool areoSpelling_ = false;
  CalibrationParameters calibration_;
  Layout layout_;
  NvImage image_;
};

}  // namespace merovane::nvproject
