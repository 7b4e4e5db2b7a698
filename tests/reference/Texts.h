#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Texts and numbers as docs/formats/README.md has them for every file.
namespace korvande::reference {

// The lines of a file, without their ends; one in UTF-8 (it begins with the mark) as Windows-1252.
std::vector<std::string> LinesOf(const std::string& file);

bool IsUtf16(const std::string& file);

std::string Capitals(std::string text);
std::string Trimmed(const std::string& text, const std::string& blanks = " ");
std::string TrimmedLeft(const std::string& text, const std::string& blanks = " ");
std::string TrimmedRight(const std::string& text, const std::string& blanks = " ");

// Left-aligned in so many characters, cut at the end; right-aligned, cut at the beginning.
std::string Left(const std::string& text, std::size_t width);
std::string Right(const std::string& text, std::size_t width);

// What stands in these columns, counted from 1; less when the line is shorter.
std::string Columns(const std::string& line, std::size_t first, std::size_t last);

bool BeginsWith(const std::string& text, const std::string& beginning);
bool EndsWith(const std::string& text, const std::string& end);
bool Contains(const std::string& text, const std::string& part);

double Finite(double number);  // or else an error
double LeadingNumber(const std::string& text);
std::int32_t WholeNumber(const std::string& text);
std::int32_t Rounded(double number);  // halves to the even one

// From 15 significant digits, halves away from zero, with so many decimals.
std::string Written(double number, int decimals);

}  // namespace korvande::reference
