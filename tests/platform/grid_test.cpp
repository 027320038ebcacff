#include <gtest/gtest.h>

#include "platform/form.h"

namespace velmar::test {
namespace {

TEST(Grid, CellsStandInTheirRowsPartedByTabs) {
  struct GridForm : Form {
    GridForm() : Form("prova", "") {}
    Grid& grid = AddGrid("griglia");
  } form;
  form.grid.Shape(2, 3);
  form.grid.Set(0, 1, "EA");
  form.grid.SetRow(1, 0, std::vector<std::string>{"144", "7"});
  EXPECT_EQ(form.grid.items.rows(), (std::vector<std::string>{"\tEA\t", "144\t7\t"}));
  form.grid.Shape(1, 2);
  EXPECT_EQ(form.grid.items.rows(), (std::vector<std::string>{"\t"}));
}

}  // namespace
}  // namespace velmar::test
