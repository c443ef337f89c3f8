#include <qda/ClassesCommand.h>

#include <memory>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include <fmt/format.h>

#include <qda/ClassTree.h>
#include <qda/CommandOptions.h>
#include <qda/Json.h>
#include <qda/SourceNamespace.h>
#include <qda/SourceText.h>
#include <qda/Text.h>
#include <qdacore/cim/object/ICIMNamespace.h>
#include <qdacore/frame/TQDAException.h>

namespace qda {

namespace {

// Deeper ones stand there: a tree of thousands of levels would be all blanks.
const unsigned int kDeepestIndent = 32;

std::string Kind(const ClassNode& node) {
  return node.isAbstract ? (node.isAssociation ? "abstract association" : "abstract")
                         : (node.isAssociation ? "association" : "");
}

std::string TreeTable(const std::vector<ClassNode>& nodes) {
  if (nodes.empty()) {
    return "The namespace has no classes\n";
  }
  std::vector<std::vector<std::string>> rows = {{"CLASS", "SUPERCLASS", "KIND"}};
  for (const ClassNode& node : nodes) {
    const unsigned int indent = node.depth < kDeepestIndent ? node.depth : kDeepestIndent;
    rows.push_back({std::string(2 * indent, ' ') + node.name, node.superclass, Kind(node)});
  }
  return Columns(rows);
}

std::string TreeJson(const std::vector<ClassNode>& nodes, const SourceOptions& source) {
  nlohmann::ordered_json json = SourceJson(source);
  json["classes"] = nlohmann::ordered_json::array();
  for (const ClassNode& node : nodes) {
    nlohmann::ordered_json row;
    row["name"] = node.name;
    row["superclass"] = node.superclass;
    if (node.depth == 0) {
      row["superclass"] = nullptr;
    }
    row["depth"] = node.depth;
    row["abstract"] = node.isAbstract;
    row["association"] = node.isAssociation;
    json["classes"].push_back(row);
  }
  return JsonText(json);
}

int RunClasses(const SourceOptions& options, Format format) {
  const boost::shared_ptr<NZRVQDA20::ICIMNamespace> ns = OpenNamespace(options);
  if (!ns) {
    return kExitFailed;
  }
  std::vector<ClassNode> nodes;
  try {
    nodes = ReadClassTree(*ns);
  } catch (const NZRVQDA20::TQDAException& failure) {
    Complain(fmt::format("{}: its classes cannot be read ({}){}", SourceText(options),
                         failure.what(), KeptWarnings()));
    return kExitFailed;
  }
  return PrintResult(format == Format::kJson ? TreeJson(nodes, options) : TreeTable(nodes))
             ? kExitDone
             : kExitFailed;
}

std::function<int()> DeclareClasses(CLI::App* app, RunOptions* run) {
  const auto options = std::make_shared<SourceOptions>();
  AddSource(app, options.get());
  AddFormat(app, run);
  return [options, run] { return RunClasses(*options, run->format); };
}

}  // namespace

const Command kClassesCommand = {"classes", "Inventory", "List the classes of a provider",
                                 DeclareClasses};

}  // namespace qda
