#pragma once

#include "platform/file_system.h"
#include "platform/picture.h"

namespace velmar {

/// Draws pictures into files, also where no window can be opened.
class QtPictureFiles : public PictureFiles {
 public:
  explicit QtPictureFiles(FileSystem& files) : files_(files) {}

  void Save(const Picture& picture, const std::string& path) override;
  std::string Png(const Picture& picture) override;

 private:
  FileSystem& files_;
};

}  // namespace velmar
