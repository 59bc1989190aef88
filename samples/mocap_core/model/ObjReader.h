#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FileText.h"
#include "util/CMesh.h"

namespace qvo::zmx::mocap {

/// Reads triangle meshes from models in the OBJ format: vertices, texture vertices and faces. Everything else
/// (normals, materials, groups, lines, curves) is skipped.
///
/// A polygon becomes a fan of triangles from its first corner, which is right for convex ones. A corner
/// without a texture vertex gets the first one where the model has any. Numbers and order are kept as the
/// file states them.
class ObjReader {
  public:
    /// Reads the file at `path`. Throws FileError, whose message is one line "PATH:LINE: cause".
    static util::CMesh readFile(const std::string& path);

    /// Reads `text`; `file` appears in messages only. Throws FileError. Cost: linear in the text.
    static util::CMesh parse(std::string_view text, const std::string& file);

  private:
    /// Of a face, as indices from 0.
    struct Corner {
        int vertex;
        int texture;
    };

    ObjReader(std::string_view text, const std::string& file)
        : rest_(withoutByteOrderMark(text)), file_(file) {}

    util::CMesh read();
    bool nextStatement();
    void readStatement();
    util::Point3d readPoint(std::size_t least, const char* what);
    void readFace();
    Corner readCorner(std::string_view word);
    int readIndex(std::string_view text, std::size_t count, const char* what);
    [[noreturn]] void fail(const std::string& cause) const;

    std::string_view rest_;
    const std::string& file_;
    std::size_t line_ = 0;      // of the present statement's first line
    std::size_t nextLine_ = 1;  // of rest_
    std::vector<std::string_view> words_;
    std::vector<Corner> corners_;
    util::CMesh mesh_;
};

}  // namespace qvo::zmx::mocap
