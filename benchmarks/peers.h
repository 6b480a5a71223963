// General libraries doing the library's work: parse a document and fill a record, or print one.
#pragma once

#include "documents.h"

namespace kov::bench {

// Each parses `text`, which it may alter, and stores what the plan names into `record`.
void readByPugixml(std::string& text, const Sample& sample, char* record);
void readByRapidxml(std::string& text, const Sample& sample, char* record);
void readByTinyxml2(std::string& text, const Sample& sample, char* record);
void readByExpat(std::string& text, const Sample& sample, char* record);
void readByLibxml2(std::string& text, const Sample& sample, char* record);

// Stores one value as the plan says.
void storeValue(const PlannedAttribute& attribute, const char* value, char* record);

// Each prints the document of the plan into `out`.
void writeBySnprintf(const Sample& sample, char* out, std::size_t size);
void writeByFmt(const Sample& sample, char* out, std::size_t size);

}  // namespace kov::bench
