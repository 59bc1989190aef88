#pragma once

#include <filesystem>
#include <string>

namespace headless {

/// A folder of results that appears whole or not at all: files are made in a hidden folder on the same disk
/// and moved in at the end. Other files of a folder that is already there stay.
class OutputFolder {
  public:
    /// Makes the hidden folder in the folder `path`, or, before there is one, in the nearest folder above it.
    /// Throws std::runtime_error when that cannot be done, which is also when nothing could be moved in.
    explicit OutputFolder(const std::string& path);
    /// Removes what was not moved in.
    ~OutputFolder();
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;

    /// Where to write the file `name` for now.
    std::string file(const std::string& name) const { return (partial_ / name).string(); }

    /// Moves everything in; files of the same names are replaced. Throws std::runtime_error; a folder of the
    /// name of one of the files is found before anything is moved.
    void complete();

  private:
    std::filesystem::path target_, partial_;
};

}  // namespace headless
