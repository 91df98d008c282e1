#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "core/application_state.h"

// What a collection file may hold. A file beyond these is a damaged file: the largest
// collection the program makes, 500 problems with their pictures, stays far below them.
inline constexpr std::size_t kMaxFileBytes = 64u << 20;
inline constexpr std::size_t kMaxTitleBytes = 1000;
inline constexpr std::size_t kMaxAffixBytes = 1000;      // number prefix and suffix each
inline constexpr std::size_t kMaxProblemTextBytes = 256u << 10;  // statement and solution each
inline constexpr std::size_t kMaxPictures = 1000;         // pictures in the directory

// A text as it may stand in a file: the '#' in front of any of the file's own tags is
// taken out (the markup drops an unknown tag's '#' anyway, so nothing changes on the page),
// and the text is cut to limit bytes at a character boundary. Used where titles, prefixes,
// suffixes and pasted problems enter, so that whatever is saved opens again.
std::string AsFileText(std::string text, std::size_t limit);

// Program text (UTF-8) to the file's single-byte Western code page and back. A character
// the code page lacks becomes "?".
std::string Utf8ToWindows1252(const std::string& text);
std::string Windows1252ToUtf8(const std::string& bytes);

// Reads the clipboard form back into a record (identity and texts).
void ReadClipboardProblem(const std::string& text, ProblemRecord& record);

// The file's bytes before any image: head and problem elements, with the directory
// pointer still "00000000".
std::string CollectionText(const ApplicationState& app);
// The image names of a collection text, in order of first use.
std::vector<std::string> ImageNames(const std::string& text);

// Writes the collection to CurrentFileName. True on success (Modified cleared).
bool SaveFile(ApplicationState& app);

// Builds the whole file in memory; on failure leaves a message in error and returns false.
bool BuildFileBytes(const ApplicationState& app, std::string& bytes, std::string& error);

// Why a file's bytes are not a collection: BadFile is said "Bad file.", NoProblems (the
// problem lines are not whole 102-character lines, or none) "Error: Bad file.".
enum class ColFileError { None, BadFile, NoProblems };

// One picture carried inside a file: its name from the directory and its bytes.
struct ColFilePicture {
    std::string name;
    std::string bytes;
};

// What a file holds: the mirror of BuildFileBytes.
struct ColFileContents {
    CollectionSettings settings;  // ProblemCount is the number of records
    std::vector<ProblemRecord> records;
    std::vector<ColFilePicture> pictures;
    ColFileError error = ColFileError::None;
};

// Reads a file's bytes: settings, records with their texts and the pictures, or the error.
// Touches no state and no disk.
ColFileContents ParseColFile(const std::string& bytes);

// How reading a file's bytes from the disk ended. errno tells why on CannotOpen.
enum class FileReadResult { Read, CannotOpen, Bad };
// The bytes of a collection file: only a regular file of at most kMaxFileBytes is read
// (Bad otherwise), without waiting on a pipe.
FileReadResult ReadCollectionBytes(const std::string& path, std::string& bytes);

// Lands the pictures of an opened file in the temp folder, those the image folder lacks.
void StorePictures(const ApplicationState& app, const std::vector<ColFilePicture>& pictures);
