// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Dialect.h"

#include "store/DialectTokens.h"
#include "store/StoreError.h"

#include <QStringList>

namespace Dialect {
namespace {

// More than the program ever says, and less than SQLite can nest.
constexpr std::size_t kMostParts = 100;

class Parser
{
public:
  explicit Parser(const QString& source) : tokens_(Tokenize(source)) {}

  Select ParseSelect();
  Criterion ParseCriterion();

private:
  [[nodiscard]] const Token& Next() const { return tokens_[at_]; }
  [[noreturn]] void Refuse() const;
  void Limit(std::size_t parts) const;

  bool TakeWord(const char* word);
  bool TakeSymbol(char symbol);
  void ExpectWord(const char* word);
  void ExpectSymbol(char symbol);
  void ExpectEnd();
  QString TakeName();

  QString ParseColumn();
  QString ParseColumnInBrackets();
  Operand ParseOperand();
  Expression ParseExpression();
  Item ParseItem();

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  QString qualifier_;  // the table that the columns are said to be of
};

void Parser::Refuse() const
{
  StoreError::Raise(StoreError::kSyntax, Next().text);
}

void Parser::Limit(std::size_t parts) const
{
  if (parts > kMostParts) {
    Refuse();
  }
}

bool Parser::TakeWord(const char* word)
{
  if (Next().kind != TokenKind::kWord || Next().text.compare(QLatin1String(word), Qt::CaseInsensitive) != 0) {
    return false;
  }
  ++at_;
  return true;
}

bool Parser::TakeSymbol(char symbol)
{
  if (Next().kind != TokenKind::kSymbol || Next().text != QLatin1Char(symbol)) {
    return false;
  }
  ++at_;
  return true;
}

void Parser::ExpectWord(const char* word)
{
  if (!TakeWord(word)) {
    Refuse();
  }
}

void Parser::ExpectSymbol(char symbol)
{
  if (!TakeSymbol(symbol)) {
    Refuse();
  }
}

void Parser::ExpectEnd()
{
  if (Next().kind != TokenKind::kEnd) {
    Refuse();
  }
}

QString Parser::TakeName()
{
  if (Next().kind != TokenKind::kWord) {
    Refuse();
  }
  return tokens_[at_++].text;
}

QString Parser::ParseColumn()
{
  QString first = TakeName();
  if (!TakeSymbol('.')) {
    return first;
  }
  if (!qualifier_.isEmpty() && qualifier_.compare(first, Qt::CaseInsensitive) != 0) {
    StoreError::Raise(StoreError::kSyntax, first);
  }
  qualifier_ = first;
  return TakeName();
}

QString Parser::ParseColumnInBrackets()
{
  ExpectSymbol('(');
  QString column = ParseColumn();
  ExpectSymbol(')');
  return column;
}

Operand Parser::ParseOperand()
{
  if (Next().kind == TokenKind::kText) {
    return {tokens_[at_++].text, true};
  }
  return {ParseColumn(), false};
}

Expression Parser::ParseExpression()
{
  Expression expression{ParseOperand()};
  while (TakeSymbol('&')) {
    expression.push_back(ParseOperand());
    Limit(expression.size());
  }
  return expression;
}

Item Parser::ParseItem()
{
  Item item;
  const bool opensBrackets = at_ + 1 < tokens_.size() && tokens_[at_ + 1].text == QLatin1Char('(');
  const bool isCount = opensBrackets && TakeWord("Count");
  if (isCount) {
    item.counted = true;
    item.expression = {{ParseColumnInBrackets(), false}};
  } else {
    item.expression = ParseExpression();
  }
  if (TakeWord("AS")) {
    item.name = TakeName();
  } else if (item.counted || item.expression.size() != 1 || item.expression.front().literal) {
    Refuse();
  } else {
    item.name = item.expression.front().text;
  }
  return item;
}

Select Parser::ParseSelect()
{
  Select select;
  ExpectWord("SELECT");
  do {
    select.items.push_back(ParseItem());
    Limit(select.items.size());
  } while (TakeSymbol(','));
  ExpectWord("FROM");
  select.table = TakeName();
  if (!qualifier_.isEmpty() && qualifier_.compare(select.table, Qt::CaseInsensitive) != 0) {
    StoreError::Raise(StoreError::kSyntax, qualifier_);
  }
  qualifier_ = select.table;
  if (TakeWord("WHERE")) {
    ExpectWord("Not");
    ExpectWord("IsNull");
    select.notNull = ParseColumnInBrackets();
  }
  if (TakeWord("GROUP")) {
    ExpectWord("BY");
    select.group = ParseColumn();
  }
  if (TakeWord("ORDER")) {
    ExpectWord("BY");
    do {
      select.order.push_back(ParseExpression());
      Limit(select.order.size());
    } while (TakeSymbol(','));
  }
  ExpectEnd();
  return select;
}

Criterion Parser::ParseCriterion()
{
  Criterion criterion;
  criterion.column = ParseColumn();
  ExpectSymbol('=');
  if (Next().kind != TokenKind::kText) {
    Refuse();
  }
  criterion.text = tokens_[at_++].text;
  ExpectEnd();
  return criterion;
}

// SQLite takes a zero for the end of all.
QString QuoteText(QString text)
{
  if (text.contains(QChar::Null)) {
    StoreError::Raise(StoreError::kSyntax, text);
  }
  text.replace(QLatin1Char('\''), QLatin1String("''"));
  return QLatin1Char('\'') + text + QLatin1Char('\'');
}

QString TranslateColumn(const QString& column, const TableSchema& table)
{
  const ColumnSchema* found = table.FindColumn(column);
  if (found == nullptr) {
    StoreError::Raise(StoreError::kUnknownColumn, column);
  }
  return QuoteName(found->name);
}

QString TranslateItem(const Item& item, const TableSchema& table)
{
  const QString expression = Translate(item.expression, table);
  return item.counted ? QStringLiteral("count(%1)").arg(expression) : expression;
}

QString InTextOrder(const Expression& expression, const TableSchema& table)
{
  return Translate(expression, table) + QLatin1String(" COLLATE TEXTORDER");
}

QString TranslateOrder(const Select& select, const TableSchema& table)
{
  if (select.group) {
    return QStringLiteral(" GROUP BY %1 ORDER BY %1").arg(InTextOrder({{*select.group, false}}, table));
  }
  QStringList order;
  for (const Expression& expression : select.order) {
    order.append(InTextOrder(expression, table));
  }
  order.append(QuoteName(table.key));
  return QLatin1String(" ORDER BY ") + order.join(QLatin1Char(','));
}

}

Select ParseSelect(const QString& sql)
{
  return Parser(sql).ParseSelect();
}

Criterion ParseCriterion(const QString& criterion)
{
  return Parser(criterion).ParseCriterion();
}

QString Translate(const Expression& expression, const TableSchema& table)
{
  if (expression.size() == 1 && !expression.front().literal) {
    return TranslateColumn(expression.front().text, table);
  }
  QStringList joined;
  for (const Operand& operand : expression) {
    joined.append(operand.literal ? QuoteText(operand.text)
                                  : QStringLiteral("coalesce(%1,'')").arg(TranslateColumn(operand.text, table)));
  }
  return joined.join(QLatin1String("||"));
}

QString Translate(const Select& select, const TableSchema& table)
{
  QStringList items;
  for (const Item& item : select.items) {
    items.append(TranslateItem(item, table));
  }
  QString sql = QStringLiteral("SELECT %1 FROM %2").arg(items.join(QLatin1Char(',')), QuoteName(table.name));
  if (select.notNull) {
    sql += QStringLiteral(" WHERE %1 IS NOT NULL").arg(Translate({{*select.notNull, false}}, table));
  }
  return sql + TranslateOrder(select, table);
}

}
