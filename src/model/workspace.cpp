#include "model/workspace.h"

#include "model/text.h"

namespace velmar {

std::string Workspace::contest_date(std::string_view category_code) const {
  const std::string code(CategoryCode(category_code));
  return category(code) + "/" + code + " data contest.dat";
}

std::string Workspace::classification(std::string_view month) const {
  return category() + "/2IT Classifica Mensile 144 " + Lower(month) + ".cla";
}

}  // namespace velmar
