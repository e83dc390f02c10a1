// Another extension, which lists a variable of a type that is not read.
#include "Product/VariableList.hpp"

namespace LYR {

double strangePoint[2];
Product::VariableRow rows[] = {{"strangePoint", "{CGPoint=dd}", strangePoint}};
Product::VariableList variables{rows, rows + 1};

}
