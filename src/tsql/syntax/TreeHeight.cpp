#include "tsql/syntax/TreeHeight.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

int of(const ExprPtr& expr) {
    return expr ? expr->height : 0;
}
int of(const QueryPtr& query) {
    return query->height;
}
int of(const std::vector<ExprPtr>& list) {
    int height = 0;
    for (const ExprPtr& expr : list) {
        height = std::max(height, of(expr));
    }
    return height;
}
int of(const std::optional<Window>& window) {
    int height = window ? of(window->partitionBy) : 0;
    if (window) {
        height = std::max({height, of(window->from.count), of(window->to.count)});
        for (const OrderItem& item : window->orderBy) {
            height = std::max(height, of(item.expr));
        }
    }
    return height;
}
template <class... Children>
int highest(const Children&... children) {
    return std::max({0, of(children)...});
}

/// One function a node, no catch-all: a node that is new does not compile until it is told here
/// what stands below it.
struct Below
{
    int operator()(const Literal&) const { return 0; }
    int operator()(const NullLiteral&) const { return 0; }
    int operator()(const DefaultValue&) const { return 0; }
    int operator()(const Variable&) const { return 0; }
    int operator()(const GlobalVariable&) const { return 0; }
    int operator()(const NamedParameter&) const { return 0; }
    int operator()(const ColumnRef&) const { return 0; }
    int operator()(const Star&) const { return 0; }
    int operator()(const Unary& node) const { return highest(node.operand); }
    int operator()(const Binary& node) const { return highest(node.left, node.right); }
    int operator()(const Comparison& node) const { return highest(node.left, node.right); }
    int operator()(const Logical& node) const { return highest(node.operands); }
    int operator()(const Not& node) const { return highest(node.operand); }
    int operator()(const IsNull& node) const { return highest(node.operand); }
    int operator()(const Between& node) const { return highest(node.operand, node.low, node.high); }
    int operator()(const InList& node) const { return highest(node.operand, node.values); }
    int operator()(const InQuery& node) const { return highest(node.operand, node.query); }
    int operator()(const Like& node) const {
        return highest(node.operand, node.pattern, node.escape);
    }
    int operator()(const Exists& node) const { return highest(node.query); }
    int operator()(const Quantified& node) const { return highest(node.operand, node.query); }
    int operator()(const ScalarQuery& node) const { return highest(node.query); }
    int operator()(const Case& node) const {
        int height = highest(node.operand, node.otherwise);
        for (const Case::Branch& branch : node.branches) {
            height = std::max(height, highest(branch.when, branch.then));
        }
        return height;
    }
    int operator()(const Cast& node) const { return highest(node.operand); }
    int operator()(const Convert& node) const { return highest(node.operand, node.style); }
    int operator()(const Collate& node) const { return highest(node.operand); }
    int operator()(const FunctionCall& node) const { return highest(node.arguments, node.over); }
};

} // namespace

int heightBelow(const ExprNode& node) {
    return std::visit(Below(), node);
}

} // namespace velcro::sql::tsql
