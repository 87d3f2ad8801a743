#include "tests/faults/ModelFileSystem.h"

#include <algorithm>
#include <utility>

namespace brennet::test {
namespace {

using Kind = FileFacts::Kind;

Path folderOf(const Path& path) {
  return path.parent_path();
}

bool isNew(OpenFor purpose) {
  return purpose == OpenFor::New || purpose == OpenFor::NewAndPrivate;
}

bool mayCreate(OpenFor purpose) {
  return isNew(purpose) || purpose == OpenFor::Creating || purpose == OpenFor::Keeping;
}

// One way in which content that was written over other content comes out when the power fails.
std::string cameOut(const std::string& flushed, const std::string& written, unsigned way) {
  switch (way) {
    case 0:
      return flushed;
    case 1:
      return written;
    case 2:  // the size arrived, the blocks did not
      return std::string(written.size(), '\0');
    case 3:  // the blocks arrived, the size did not
      return written.substr(0, flushed.size());
    case 4:  // the first blocks arrived
      return written.substr(0, written.size() / 2) +
             (flushed.size() > written.size() / 2 ? flushed.substr(written.size() / 2) : "");
    case 5:
      return written.substr(0, written.size() / 2);
    default:
      return {};
  }
}
constexpr unsigned kContentWays = 7;

}  // namespace

FileError failureOf(Obstacle obstacle) {
  if (obstacle == Obstacle::None) return {};
  const std::errc code = obstacle == Obstacle::Missing  ? std::errc::no_such_file_or_directory
                         : obstacle == Obstacle::Exists ? std::errc::file_exists
                         : obstacle == Obstacle::Held   ? std::errc::resource_unavailable_try_again
                         : obstacle == Obstacle::Denied ? std::errc::permission_denied
                                                        : std::errc::io_error;
  return {obstacle, std::make_error_code(code)};
}

ModelFileSystem::ModelFileSystem() {
  makeFolder("/private");
}

void ModelFileSystem::makeFolder(const Path& path) {
  const auto node = std::make_shared<Node>();
  node->kind = Kind::Folder;
  names_[path] = flushedNames_[path] = node;
}

void ModelFileSystem::makeFile(const Path& path, std::string content) {
  const auto node = std::make_shared<Node>();
  node->content = node->flushed = std::move(content);
  names_[path] = flushedNames_[path] = node;
}

void ModelFileSystem::makeLink(const Path& path, const Path& target) {
  const auto node = std::make_shared<Node>();
  node->kind = Kind::Link;
  node->target = target;
  names_[path] = flushedNames_[path] = node;
}

void ModelFileSystem::makeSecondName(const Path& path, const Path& second) {
  names_[second] = flushedNames_[second] = names_.at(path);
}

void ModelFileSystem::removeFile(const Path& path) {
  names_.erase(path);
  flushedNames_.erase(path);
}

std::string ModelFileSystem::contentOf(const Path& path) const {
  const NodePointer node = nodeAt(path);
  return node != nullptr && node->kind == Kind::File ? node->content : "(none)";
}

std::string ModelFileSystem::listing(const Path& folder) const {
  std::string text;
  for (const auto& [name, node] : names_) {
    const std::string path = name.generic_string();
    if (path.starts_with(folder.generic_string() + "/")) text += path + "\n";
  }
  return text;
}

void ModelFileSystem::endPrograms() {
  opened_.clear();
  ++process_;
  stopsHalfway_ = false;
}

void ModelFileSystem::losePower(unsigned way) {
  endPrograms();
  const unsigned contentWay = way % kContentWays;
  unsigned bits = way / kContentWays;  // which changes of names come through
  if (way == 1) bits = ~0U;
  for (const Change& change : changes_) {
    if ((bits & 1U) != 0) apply(change, flushedNames_);
    bits = way == 1 ? ~0U : bits >> 1U;
  }
  changes_.clear();
  names_ = flushedNames_;
  for (const auto& [name, node] : names_) {
    if (node->content != node->flushed) {
      node->content = cameOut(node->flushed, node->content, contentWay);
    }
    node->flushed = node->content;
  }
}

ModelFileSystem::NodePointer ModelFileSystem::nodeAt(const Path& path) const {
  const auto found = names_.find(path);
  return found == names_.end() ? nullptr : found->second;
}

unsigned ModelFileSystem::linksOf(const NodePointer& node) const {
  return static_cast<unsigned>(std::count_if(
      names_.begin(), names_.end(), [&](const auto& name) { return name.second == node; }));
}

void ModelFileSystem::apply(const Change& change, Names& names) {
  if (change.node != nullptr) names[change.name] = change.node;
  names.erase(change.gone);
}

void ModelFileSystem::change(Change change) {
  apply(change, names_);
  changes_.push_back(std::move(change));
}

FileError ModelFileSystem::mayName(const Path& path) const {
  const NodePointer folder = nodeAt(folderOf(path));
  if (folder == nullptr || folder->kind != Kind::Folder) return failureOf(Obstacle::Missing);
  const bool isLong = path.filename().native().size() > 1;
  if (isLong && nature.shortNames.contains(folderOf(path))) {
    if (nature.findsNoLongNames) return failureOf(Obstacle::Missing);
    return {Obstacle::Other, std::make_error_code(std::errc::filename_too_long)};
  }
  return failureOf(nature.closedFolders.contains(folderOf(path)) ? Obstacle::Denied
                                                                 : Obstacle::None);
}

bool ModelFileSystem::isBusy(const Path& path) {
  const auto found = nature.busy.find(path);
  return found != nature.busy.end() && found->second > 0;
}

bool ModelFileSystem::isKept(const NodePointer& node) const {
  return std::any_of(opened_.begin(), opened_.end(), [&](const auto& entry) {
    return entry.second.node == node && entry.second.purpose == OpenFor::Keeping;
  });
}

FileError ModelFileSystem::open(const Path& path, OpenFor purpose, FileHandle& file,
                                FileFacts& facts) {
  if (others.beforeOpen) others.beforeOpen(path, purpose);
  NodePointer node = nodeAt(path);
  if (node != nullptr && isNew(purpose)) return failureOf(Obstacle::Exists);
  if (node == nullptr) {
    if (!mayCreate(purpose)) return failureOf(Obstacle::Missing);
    if (const FileError error = mayName(path)) return error;
    node = std::make_shared<Node>();
    change({path, node, {}});
  }
  if (node->kind != Kind::File) return failureOf(Obstacle::Other);
  if (isBusy(path) || (purpose == OpenFor::Keeping && isKept(node))) {
    return failureOf(Obstacle::Held);
  }
  file = ++lastHandle_;
  opened_[file] = {node, path, purpose, {}};
  facts = {Kind::File, node->content.size(), linksOf(node), 0};
  return {};
}

FileError ModelFileSystem::read(FileHandle file, std::uint64_t offset, char* bytes,
                                std::size_t size, std::size_t& count) {
  if (others.beforeRead) others.beforeRead(opened_.at(file).name);
  const std::string& content = opened_.at(file).node->content;
  const std::size_t start = std::min(static_cast<std::size_t>(offset), content.size());
  count = std::min(size, content.size() - start);
  std::copy_n(content.data() + start, count, bytes);
  return {};
}

FileError ModelFileSystem::write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                                 std::size_t& count) {
  std::string& content = opened_.at(file).node->content;
  const auto start = static_cast<std::size_t>(offset);
  content.resize(std::max(content.size(), start + bytes.size()));
  content.replace(start, bytes.size(), bytes);
  count = bytes.size();
  return {};
}

FileError ModelFileSystem::resize(FileHandle file, std::uint64_t size) {
  opened_.at(file).node->content.resize(static_cast<std::size_t>(size));
  return {};
}

FileError ModelFileSystem::reserve(FileHandle /*file*/, std::uint64_t /*size*/) {
  return {};
}

FileError ModelFileSystem::flush(FileHandle file) {
  const NodePointer node = opened_.at(file).node;
  node->flushed = node->content;
  if (nature.flushesNoFolders) {
    const Path folder = folderOf(opened_.at(file).name);
    flushChanges([&](const Change& change) {
      return change.gone.empty() && (change.node == node || change.name == folder);
    });
  }
  return {};
}

FileError ModelFileSystem::lock(FileHandle file, Sharing sharing) {
  Opened& own = opened_.at(file);
  const bool isLocked = std::any_of(opened_.begin(), opened_.end(), [&](const auto& entry) {
    const Opened& other = entry.second;
    return entry.first != file && other.node == own.node && other.lock &&
           (sharing == Sharing::Alone || other.lock == Sharing::Alone);
  });
  if (isLocked) return failureOf(Obstacle::Held);
  own.lock = sharing;
  return {};
}

FileError ModelFileSystem::close(FileHandle file) {
  opened_.erase(file);
  return {};
}

void ModelFileSystem::copyRights(const Path& /*path*/, FileHandle /*file*/) {}

FileFacts ModelFileSystem::look(const Path& path) {
  const NodePointer node = nodeAt(path);
  if (node == nullptr) return {};
  return {node->kind, node->content.size(), linksOf(node), 0};
}

FileError ModelFileSystem::move(const Path& from, const Path& to) {
  const NodePointer node = nodeAt(from);
  if (node == nullptr) return failureOf(Obstacle::Missing);
  if (nodeAt(to) != nullptr) return failureOf(Obstacle::Exists);
  if (nature.foreignFiles.contains(from)) return failureOf(Obstacle::Denied);
  if (const FileError error = mayName(to)) return error;
  change({to, node, from});
  if (nature.flushesNoFolders) flushChanges([&](const Change& c) { return c.name == to; });
  return {};
}

FileError ModelFileSystem::exchange(const Path& replacement, const Path& path, const Path& backup) {
  const NodePointer node = nodeAt(replacement);
  if (node == nullptr || nodeAt(path) == nullptr) return failureOf(Obstacle::Missing);
  const bool stopsHalfway = std::exchange(stopsHalfway_, false);
  if (nature.mounts.contains(path)) return failureOf(Obstacle::Other);
  if (nature.foreignFiles.contains(path)) return failureOf(Obstacle::Denied);
  if (isBusy(path)) return failureOf(Obstacle::Held);
  if (nature.twoSteps) {
    change({backup, nodeAt(path), path});
    if (stopsHalfway) return failureOf(Obstacle::Halfway);
  }
  // Replacing one name by another is one step, on the disk too.
  change({path, node, replacement});
  return {};
}

FileError ModelFileSystem::link(const Path& path, const Path& second) {
  if (!nature.hasLinks) return failureOf(Obstacle::Other);
  if (nature.foreignFiles.contains(path)) return failureOf(Obstacle::Denied);
  if (nodeAt(path) == nullptr) return failureOf(Obstacle::Missing);
  if (nodeAt(second) != nullptr) return failureOf(Obstacle::Exists);
  if (const FileError error = mayName(second)) return error;
  change({second, nodeAt(path), {}});
  if (nature.flushesNoFolders) flushChanges([&](const Change& c) { return c.name == second; });
  return {};
}

bool ModelFileSystem::isSameFile(const Path& a, const Path& b) {
  return nodeAt(a) != nullptr && nodeAt(a) == nodeAt(b);
}

FileError ModelFileSystem::remove(const Path& path) {
  if (nodeAt(path) == nullptr) return failureOf(Obstacle::Missing);
  if (nature.foreignFiles.contains(path)) return failureOf(Obstacle::Denied);
  change({{}, nullptr, path});
  return {};
}

FileError ModelFileSystem::removeKept(FileHandle /*file*/, const Path& path) {
  return remove(path);
}

FileError ModelFileSystem::removeBackup(const Path& backup, const Path& path) {
  return nodeAt(path) != nullptr ? remove(backup) : FileError();
}

FileError ModelFileSystem::createFolder(const Path& name) {
  const Path path = name.has_filename() ? name : name.parent_path();
  if (nodeAt(path) != nullptr) return failureOf(Obstacle::Exists);
  if (const FileError error = mayName(path)) return error;
  const auto node = std::make_shared<Node>();
  node->kind = Kind::Folder;
  change({path, node, {}});
  return {};
}

FileError ModelFileSystem::createPrivateFolder(const Path& path) {
  if (others.beforePrivateFolder) others.beforePrivateFolder();
  const FileError error = createFolder(path);
  return error.obstacle == Obstacle::Exists ? FileError() : error;
}

FileError ModelFileSystem::checkPrivateFolder(const Path& path) {
  if (others.beforePrivateFolder) others.beforePrivateFolder();
  return failureOf(nodeAt(path) != nullptr ? Obstacle::None : Obstacle::Missing);
}

void ModelFileSystem::removeFolder(const Path& path) {
  if (nodeAt(path) != nullptr && listing(path).empty()) change({{}, nullptr, path});
}

FileError ModelFileSystem::flushFolder(const Path& path) {
  if (nature.flushesNoFolders) return {};
  flushChanges([&](const Change& change) {
    return folderOf(change.node != nullptr ? change.name : change.gone) == path;
  });
  return {};
}

void ModelFileSystem::flushChanges(const std::function<bool(const Change&)>& isMeant) {
  std::erase_if(changes_, [&](const Change& change) {
    const bool isDone = isMeant(change);
    if (isDone) apply(change, flushedNames_);
    return isDone;
  });
}

FileError ModelFileSystem::list(const Path& folder,
                                const std::function<void(const Path& name)>& visit) {
  if (nature.unlistedFolders.contains(folder)) return failureOf(Obstacle::Other);
  if (nodeAt(folder) == nullptr) return failureOf(Obstacle::Missing);
  const Names before = names_;
  for (const auto& [name, node] : before) {
    if (folderOf(name) == folder) visit(name.filename());
  }
  return {};
}

bool ModelFileSystem::isSameName(std::basic_string_view<Path::value_type> a,
                                 std::basic_string_view<Path::value_type> b) {
  return a == b;
}

Path ModelFileSystem::resolved(const Path& path) {
  const NodePointer node = nodeAt(path);
  return node != nullptr && node->kind == Kind::Link ? node->target : path;
}

Path ModelFileSystem::identity(const Path& path) {
  return path;
}

Path ModelFileSystem::privateFolder() {
  return nature.hasPrivateFolder ? Path("/private") / "kept" : Path();
}

std::int64_t ModelFileSystem::wallTime() {
  return 1'700'000'000;  // a moment in 2023
}

void ModelFileSystem::pause() {
  ++pauses;
  time_ += pauseLength;
  for (auto& [path, left] : nature.busy) --left;
}

}  // namespace brennet::test
