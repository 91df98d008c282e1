#include "generators/catalogue.h"

#include "mathservices/utf8_text.h"

namespace {
// Trimmed, padded with leading zeros and cut to its last three characters.
std::string ThreeDigits(const std::string& value) {
    const std::string padded = "000" + TrimBlanks(value);
    return padded.substr(padded.size() - 3);
}
} // namespace

void NormaliseDescribeFields(GeneratorWorkspace& ws, int routineNumber) {
    ws.RoutineId = ThreeDigits(std::to_string(routineNumber));
    ws.TopicId = ThreeDigits(ws.TopicId);
    ws.SubtopicId = ThreeDigits(ws.SubtopicId);
    ws.MaxAmount = ThreeDigits(ws.MaxAmount);
    ws.Subject = Utf8PadRight(ws.Subject, 65);
    ws.TopicName = Utf8PadRight(ws.TopicName, 80);
    ws.Title = Utf8PadRight(ws.Title, 80);
    ws.Description = Utf8PadRight(ws.Description, 160);
    ws.Kind = (TrimBlanks(ws.Kind) + "3").substr(0, 1);
}

std::string TopicHeaderLine(const GeneratorWorkspace& ws) {
    return ws.TopicId + "000" + ws.Subject + ws.TopicName + std::string(80, ' ') + "5" + "000" + "000" +
           std::string(160, ' ') + "\r\n";
}

std::string CatalogueLine(const GeneratorWorkspace& ws) {
    return ws.TopicId + ws.SubtopicId + ws.Subject + ws.TopicName + ws.Title + ws.Kind + ws.RoutineId +
           ws.MaxAmount + ws.Description + "\r\n";
}

CatalogueEntry ReadCatalogueEntry(const std::string& entry) {
    CatalogueEntry e;
    const auto colon = entry.find(':');
    const std::string line = colon == std::string::npos ? entry : entry.substr(colon + 1);
    e.moduleName = colon == std::string::npos ? "" : entry.substr(0, colon);
    e.TopicId = Utf8Mid(line, 0, 3);
    e.SubtopicId = Utf8Mid(line, 3, 3);
    e.Subject = Utf8Mid(line, 6, 65);
    e.TopicName = Utf8Mid(line, 71, 80);
    e.Title = Utf8Mid(line, 151, 80);
    e.Kind = Utf8Mid(line, 231, 1);
    e.RoutineId = Utf8Mid(line, 232, 3);
    e.MaxAmount = Utf8Mid(line, 235, 3);
    e.Description = Utf8Mid(line, 238, 160);
    return e;
}
