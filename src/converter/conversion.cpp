// SPDX-License-Identifier: MIT
#include "converter/conversion.h"

#include <QDir>
#include <QFileInfo>
#include <iostream>
#include <iterator>
#include <utility>
#include <vector>

#include "converter/endings.h"
#include "converter/media_files.h"
#include "converter/pictures.h"
#include "crossword/installments.h"
#include "exchange/crossword_file.h"
#include "exchange/format.h"
#include "exchange/media.h"

namespace kalvon::converter {
namespace {

using exchange::ConversionError;
using exchange::HeadedCrossword;
using exchange::Matter;
using exchange::Remarks;

/// A file to be written.
struct Output {
  std::string path;
  std::string bytes;
};

HeadedCrossword Read(const std::string& source, const Options& options, Remarks& remarks) {
  if (source != standard_stream)
    return exchange::ReadCrosswordFile(source, options.storing, remarks);
  std::string bytes;
  std::vector<char> part(std::size_t{1} << 16);
  while (std::cin && bytes.size() <= exchange::largest_file) {
    std::cin.read(part.data(), static_cast<std::streamsize>(part.size()));
    bytes.append(part.data(), static_cast<std::size_t>(std::cin.gcount()));
  }
  return exchange::ReadCrosswordBytes(bytes, options.storing, remarks);
}

QFileInfo FileInfo(const std::string& path) { return QFileInfo(QString::fromStdString(path)); }

/// A file of the same folder.
std::string Beside(const std::string& path, const std::string& name) {
  return FileInfo(path).dir().filePath(QString::fromStdString(name)).toStdString();
}

std::vector<Output> QvmOutputs(const HeadedCrossword& headed, const std::string& target,
                               const Options& options, Remarks& remarks) {
  const exchange::Division division = options.division.value_or(headed.division);
  const std::vector<exchange::QvmFile> files = exchange::QvmFiles(headed, division, remarks);
  if (target == standard_stream) {
    if (files.size() > 1) throw ConversionError(Matter::one_file_wanted);
    return {{target, files.front().crossword}};
  }
  const std::string base = FileInfo(target).completeBaseName().toStdString();
  if (!exchange::IsTakenName(base)) throw ConversionError(Matter::refused_name, base);
  std::vector<Output> outputs;
  for (const exchange::QvmFile& file : files) {
    const int installment = static_cast<int>(&file - files.data()) + 1;
    const std::string path = Beside(target, exchange::QvmName(base, division, installment));
    outputs.push_back({path, file.crossword});
    if (!file.pack.empty()) outputs.push_back({WithExtension(path, "qvd"), file.pack});
  }
  return outputs;
}

/// Brings the media of a crossword's clues along, from its packs or the folder of the options and,
/// for a format that has no packs, into that folder.
void MoveMedia(HeadedCrossword& headed, const std::string& source, const std::string& target,
               const Options& options, Remarks& remarks) {
  const bool packs_wanted = TargetEnding(target, options) == "qvm";
  const bool has_packs = exchange::IsQvm(source);
  if (has_packs && (packs_wanted || !options.media.empty())) exchange::ReadMedia(headed, remarks);
  if (!has_packs && packs_wanted) TakeMedia(headed, options.media, remarks);
  if (has_packs && !packs_wanted && !options.media.empty())
    WriteMedia(headed, options.media, options.force);
}

std::vector<Output> Outputs(const HeadedCrossword& headed, const std::string& target,
                            const Options& options, Remarks& remarks) {
  const std::string ending = TargetEnding(target, options);
  if (ending == "qvm") return QvmOutputs(headed, target, options, remarks);
  if (IsPictureEnding(ending)) return {{target, PictureOf(headed, ending, options)}};
  const exchange::Format* const format = exchange::FormatOfEnding(ending);
  if (format == nullptr) throw ConversionError(Matter::unknown_target, TargetEndings());
  return {{target, format->write(exchange::Shown(headed, options.latin), remarks)}};
}

void Write(const std::vector<Output>& outputs, bool force) {
  for (const Output& output : outputs)
    if (!force && output.path != standard_stream && FileInfo(output.path).exists())
      throw ConversionError(Matter::exists, output.path);
  for (const auto& [path, bytes] : outputs) {
    if (path != standard_stream)
      exchange::WriteBytes(path, bytes);
    else
      std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  }
}

}  // namespace

std::string TargetEnding(const std::string& target, const Options& options) {
  return options.to.empty() ? exchange::EndingOf(target) : options.to;
}

bool Convert(const std::string& source, const std::string& target, const Options& options) {
  Remarks remarks;
  bool done = true;
  try {
    HeadedCrossword headed = Read(source, options, remarks);
    MoveMedia(headed, source, target, options, remarks);
    Write(Outputs(headed, target, options, remarks), options.force);
  } catch (const ConversionError& error) {
    remarks.Add(error.Why());
    done = false;
  }
  for (const exchange::Remark& remark : remarks.List()) Tell(source, remark);
  return done;
}

std::string TargetInFolder(const std::string& source, const Options& options) {
  const std::string base = FileInfo(source).completeBaseName().toStdString();
  const std::string name = options.to == "qvm" ? exchange::MadeName(base) : base;
  return options.into + "/" + name + "." + options.to;
}

void Tell(const std::string& file, const exchange::Remark& remark) {
  std::cerr << file;
  if (remark.cell.y > 0) std::cerr << ':' << remark.cell.y << ',' << remark.cell.x;
  std::cerr << ": " << TextOf(remark, true) << '\n';
}

}  // namespace kalvon::converter
