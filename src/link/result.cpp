#include "link/result.h"

#include <array>

namespace merovane {
namespace {

struct ResultText {
  std::string_view name;
  std::string_view meaning;
  std::string_view advice;
};

constexpr std::array kResultTexts = {
#define RESULT(code, name, publicName, meaning, advice) ResultText{publicName, meaning, advice},
#include "api/result_codes.def"
#undef RESULT
};
static_assert(kResultTexts.size() == 41);

const ResultText* FindText(Result result) {
  // The first is that of -1.
  const auto index = static_cast<std::uint32_t>(result) + 1U;
  return index < kResultTexts.size() ? &kResultTexts[index] : nullptr;
}

}  // namespace

std::string_view ResultName(Result result) {
  const ResultText* text = result == Result::NotSupported ? nullptr : FindText(result);
  return text ? text->name : "SUCCESS";
}

std::string_view ResultMeaning(Result result) {
  const ResultText* text = FindText(result);
  return text ? text->meaning : std::string_view("");
}

std::string_view ResultAdvice(Result result) {
  const ResultText* text = FindText(result);
  return text ? text->advice : std::string_view("");
}

}  // namespace merovane
