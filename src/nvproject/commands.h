// What callers can ask of a phone object's NV project, one function for each. A null project means
// that none is open. Results: Success, InvalidParam for a missing argument or an unknown band,
// NvProjectNotOpen, PathNotFound. Arguments are checked before the project, unless a function says
// otherwise.
#pragma once

#include <cstdint>
#include <memory>

#include "link/result.h"
#include "nvproject/file_parser.h"

namespace merovane::nvproject {

// Opens a project in place of the one that is held. OpenNvProjectFailed: it cannot be read, and
// none is held any more.
Result OpenPrjFile(std::unique_ptr<CFileParser>& project, const char* path);
Result ClosePrjFile(std::unique_ptr<CFileParser>& project);

// Writes `capacity` bytes: the content's text, cut to fit, then zeros. A content of `capacity`
// characters or more comes without a terminator. Any module searches them all.
Result GetNvValue(CFileParser* project, std::uint32_t module, const char* path, char* text,
                  std::uint32_t capacity);
// Stores at most 255 characters of the text.
Result SetNvValue(CFileParser* project, std::uint32_t module, const char* path, const char* text);

// `buffer` has 65,536 bytes. BufferTooSmall, and nothing written, when the image is longer.
Result GenerateNvBinaryDataBlockInMemory(CFileParser* project, void* buffer, std::uint32_t* length,
                                         const ImageContext& context);
// Success even when the target file cannot be written; a message box tells of it. BufferTooSmall,
// and the file left as it was, when the image would pass 65,536 bytes.
Result SaveToBinaryFile(CFileParser* project, const ImageContext& context);
// Gives the offset only.
Result GetItemOffsetAndSize(CFileParser* project, const char* path, std::uint32_t* offset);
// The project is checked first. An unknown path changes nothing and is a success. See
// nv_image.h for what is converted.
Result ConvertDataByDataType(CFileParser* project, const char* path, void* data,
                             std::uint32_t length);

// Bands: 0 GSM, 1 GSM850, 2 DCS, 3 PCS. Numbers in the comments are counts of elements.
Result GetNvValueAgc(CFileParser* project, std::uint16_t* agcWords /*91*/, std::uint16_t* gainIndex,
                     std::uint16_t* rxBoundary /*4*/, std::uint32_t band);
// Writes the gain indices of GSM, DCS and GSM850 too, with the values last read or written by the
// AGC commands in this project, 0 before that.
Result SetNvValueAgc(CFileParser* project, const std::uint16_t* agcWords /*91*/,
                     std::uint16_t gainIndex, const std::uint16_t* rxCompensation /*5*/,
                     std::uint32_t band);
// For GSM the two ramp-down tables come in each other's place.
Result GetNvValueApc(CFileParser* project, std::uint16_t* rampUpStage0 /*16*/,
                     std::uint16_t* rampUpStage1 /*16*/, std::uint16_t* rampDownStage0 /*16*/,
                     std::uint16_t* rampDownStage1 /*16*/, std::uint16_t* txBoundary /*4*/,
                     std::uint16_t* stepFactor /*80*/, std::uint32_t band);
Result SetNvValueApc(CFileParser* project, const std::uint16_t* stepFactor /*80*/,
                     std::uint32_t band);
// The project is checked first. Bands here: 0 GSM, 1 DCS, 3 PCS, 4 GSM850; any other is a success
// and reads nothing.
Result GetNvValueFactor(CFileParser* project, std::uint16_t* stepFactor /*80*/, std::uint32_t band);

Result GetNvValueNvVersion(CFileParser* project, std::uint16_t* version);
// The same value.
Result GetNvValueNvVersionTd(CFileParser* project, std::uint16_t* version);

Result GetNvValueAdc1(CFileParser* project, std::uint32_t* adc /*2*/, std::uint32_t* battery /*2*/);
Result SetNvValueAdc1(CFileParser* project, const std::uint32_t* adc /*2*/,
                      const std::uint32_t* battery /*2*/);
Result GetNvValueAdc2(CFileParser* project, std::uint16_t* voltageTable /*16*/);
Result SetNvValueAdc2(CFileParser* project, const std::uint16_t* voltageTable /*16*/);

Result GetNvValueAfc1(CFileParser* project, std::uint16_t* center, std::uint16_t* slope);
Result SetNvValueAfc1(CFileParser* project, std::uint16_t center, std::uint16_t slope);
Result GetNvValueAfc2(CFileParser* project, std::uint16_t* slopeLength, std::uint16_t* cdac,
                      std::uint16_t* cafc, std::uint16_t* afcRange /*16*/,
                      std::uint16_t* slopeValue /*16*/, std::uint16_t* slopeReciprocal /*16*/);
Result SetNvValueAfc2(CFileParser* project, std::uint16_t slopeLength, std::uint16_t cdac,
                      std::uint16_t cafc, const std::uint16_t* afcRange /*16*/,
                      const std::uint16_t* slopeValue /*16*/,
                      const std::uint16_t* slopeReciprocal /*16*/);

}  // namespace merovane::nvproject
