// General libraries doing the library's work: parse a document and fill a record, or print one.
#pragma once

#include "documents.h"

namespace kov::bench {

// Each parses `text`, which it may alter, and stores what the plan names into `values`.
void readByPugixml(std::string& text, const Sample& sample, char* values);
void readByRapidxml(std::string& text, const Sample& sample, char* values);
void readByTinyxml2(std::string& text, const Sample& sample, char* values);
void readByExpat(std::string& text, const Sample& sample, char* values);
void readByLibxml2(std::string& text, const Sample& sample, char* values);

// Stores one value as the plan says.
void storeValue(const PlannedAttribute& attribute, const char* value, char* values);

// Each prints the document of the plan into `out`.
void writeBySnprintf(const Sample& sample, char* out, std::size_t size);
void writeByFmt(const Sample& sample, char* out, std::size_t size);
void writePieces(const Sample& sample, char* out, std::size_t size);

}  // namespace kov::bench
