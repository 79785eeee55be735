#include "core/store/jet.h"

#include <QRegularExpression>

#include <array>

#include "core/failure.h"

namespace jet {
namespace {

using namespace Qt::StringLiterals;

enum class TokenKind { Word, Bracketed, Number, Text, Date, Symbol, End };

struct Token {
  TokenKind kind = TokenKind::End;
  QStringView text;  // a literal without its signs
};

constexpr std::array kKeywords = {u"select",   u"from",   u"where",  u"and",     u"or",     u"not",   u"order",
                                  u"by",       u"asc",    u"desc",   u"inner",   u"left",   u"right", u"outer",
                                  u"join",     u"on",     u"as",     u"delete",  u"update", u"set",   u"insert",
                                  u"into",     u"values", u"in",     u"between", u"like",   u"is",    u"null",
                                  u"distinct", u"group",  u"having", u"union",   u"all",    u"exists"};

bool Is(const Token& token, QStringView word) {
  return token.kind == TokenKind::Word && token.text.compare(word, Qt::CaseInsensitive) == 0;
}

bool IsSymbol(const Token& token, QStringView symbol) {
  return token.kind == TokenKind::Symbol && token.text == symbol;
}

bool IsKeyword(const Token& token) {
  if (token.kind != TokenKind::Word) return false;
  for (QStringView keyword : kKeywords)
    if (token.text.compare(keyword, Qt::CaseInsensitive) == 0) return true;
  return false;
}

bool IsName(const Token& token) {
  return token.kind == TokenKind::Bracketed || (token.kind == TokenKind::Word && !IsKeyword(token));
}

bool IsComparison(const Token& token) {
  static constexpr std::array kComparisons = {u"=", u"<>", u"<", u">", u"<=", u">="};
  if (token.kind != TokenKind::Symbol) return Is(token, u"like");
  for (QStringView symbol : kComparisons)
    if (token.text == symbol) return true;
  return false;
}

bool IsLiteral(const Token& token) {
  return token.kind == TokenKind::Number || token.kind == TokenKind::Text || token.kind == TokenKind::Date;
}

// Almost all that a statement holds is plain ASCII; the tables of Unicode are asked for the rest alone.
bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool IsWordStart(QChar c) {
  const char16_t lower = c.unicode() | 0x20;
  return (lower >= 'a' && lower <= 'z') || c == u'_' || (c.unicode() > 127 && c.isLetter());
}
bool IsWordPart(QChar c) { return IsWordStart(c) || IsDigit(c) || (c.unicode() > 127 && c.isLetterOrNumber()); }
bool IsBlank(QChar c) { return c == u' ' || (c >= u'\t' && c <= u'\r') || (c.unicode() > 127 && c.isSpace()); }

[[noreturn]] void SyntaxError(QStringView statement) {
  throw Failure(u"Syntax error in query expression '%1'."_s.arg(statement));
}

class Scanner {
 public:
  explicit Scanner(QStringView statement) : statement_(statement) {}

  Token Next() {
    while (at_ < statement_.size() && (IsBlank(statement_[at_]) || statement_[at_] == u';')) ++at_;
    if (at_ >= statement_.size()) return {};
    const QChar c = statement_[at_];
    if (IsWordStart(c)) return Run(TokenKind::Word, [](QChar x) { return IsWordPart(x); });
    if (IsDigit(c) || (c == u'.' && at_ + 1 < statement_.size() && IsDigit(statement_[at_ + 1]))) return Number();
    if (c == u'\'' || c == u'"') return Quoted(c);
    if (c == u'#') return Enclosed(TokenKind::Date, u'#');
    if (c == u'[') return Enclosed(TokenKind::Bracketed, u']');
    return Symbol();
  }

 private:
  template <typename Accept>
  Token Run(TokenKind kind, Accept accept) {
    const qsizetype start = at_;
    while (at_ < statement_.size() && accept(statement_[at_])) ++at_;
    return {kind, statement_.mid(start, at_ - start)};
  }

  Token Number() {
    const qsizetype start = at_;
    while (at_ < statement_.size()) {
      const QChar c = statement_[at_];
      const bool exponentSign = (c == u'+' || c == u'-') && at_ > start && statement_[at_ - 1].toLower() == u'e';
      if (!IsDigit(c) && c != u'.' && c != u'e' && c != u'E' && !exponentSign) break;
      ++at_;
    }
    return {TokenKind::Number, statement_.mid(start, at_ - start)};
  }

  Token Quoted(QChar quote) {
    const qsizetype start = ++at_;
    while (at_ < statement_.size()) {
      if (statement_[at_] == quote) {
        if (at_ + 1 >= statement_.size() || statement_[at_ + 1] != quote) {
          return {TokenKind::Text, statement_.mid(start, at_++ - start)};
        }
        ++at_;
      }
      ++at_;
    }
    throw Failure(u"Syntax error in string in query expression '%1'."_s.arg(statement_));
  }

  Token Enclosed(TokenKind kind, QChar closing) {
    const qsizetype end = statement_.indexOf(closing, at_ + 1);
    if (end < 0) SyntaxError(statement_);
    const QStringView inside = statement_.mid(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    return {kind, inside};
  }

  Token Symbol() {
    static constexpr std::array kDouble = {u"<>", u"<=", u">="};
    for (QStringView pair : kDouble)
      if (statement_.mid(at_, 2) == pair) return {TokenKind::Symbol, statement_.mid((at_ += 2) - 2, 2)};
    return {TokenKind::Symbol, statement_.mid(at_++, 1)};
  }

  QStringView statement_;
  qsizetype at_ = 0;
};

/// Where in a translated statement a literal belongs: the column named before the comparison in front of it.
class ComparedColumn {
 public:
  void See(const Token& token) {
    if (IsName(token)) {
      candidate_ = token.text.toString();
    } else if (IsComparison(token) || Is(token, u"between") || Is(token, u"in")) {
      column_ = candidate_;
    } else if (Is(token, u"where") || Is(token, u"or") || (Is(token, u"and") && !between_) || Is(token, u"set")) {
      column_.clear();
    }
    if (Is(token, u"between"))
      between_ = true;
    else if (Is(token, u"and"))
      between_ = false;
  }
  const QString& Name() const { return column_; }

 private:
  QString candidate_;
  QString column_;
  bool between_ = false;
};

QByteArray Quoted(QStringView name) { return '[' + name.toUtf8() + ']'; }

/// Writes SQLite's text for the tokens of a statement, literals as numbered parameters.
class Writer {
 public:
  explicit Writer(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  Translation Write() {
    size_t start = 0;
    if (tokens_.size() == 1 && IsName(tokens_[0])) {
      out_.isQuery = true;
      out_.tables = {tokens_[0].text.toString()};
      out_.table = out_.tables[0];
      out_.sql = "SELECT *, [" + out_.table.toUtf8() + "].rowid FROM " + Quoted(tokens_[0].text);
      return std::move(out_);
    }
    out_.isQuery = !tokens_.empty() && Is(tokens_[0], u"select");
    CollectTables();
    if (out_.isQuery && IsPlainSelect()) out_.table = out_.tables[0];
    if (!tokens_.empty() && Is(tokens_[0], u"delete")) {
      // Jet allows "*" or a field between DELETE and FROM; neither means anything.
      Put("DELETE");
      while (start < tokens_.size() && !Is(tokens_[start], u"from")) ++start;
    }
    bool rowIdWritten = out_.table.isEmpty();
    for (size_t i = start; i < tokens_.size(); ++i) {
      if (!rowIdWritten && Is(tokens_[i], u"from")) {
        out_.sql += ", [" + out_.table.toUtf8() + "].rowid";
        rowIdWritten = true;
      }
      WriteToken(i);
    }
    return std::move(out_);
  }

 private:
  void Put(const QByteArray& text) {
    if (!out_.sql.isEmpty() && !out_.sql.endsWith('.')) out_.sql += ' ';
    out_.sql += text;
  }

  void WriteToken(size_t i) {
    const Token& token = tokens_[i];
    compared_.See(token);
    if (IsLiteral(token)) {
      out_.comparedTo.push_back(compared_.Name());
      Put('?' + QByteArray::number(static_cast<qulonglong>(out_.comparedTo.size())));
    } else if (Is(token, u"true")) {
      Put("-1");
    } else if (Is(token, u"false")) {
      Put("0");
    } else if (IsSymbol(token, u".")) {
      out_.sql += '.';
    } else if (IsSymbol(token, u"&")) {
      Put("||");
    } else if (token.kind == TokenKind::Symbol || IsKeyword(token) || IsFunction(i)) {
      Put(token.text.toUtf8());
    } else {
      Put(Quoted(token.text));
    }
  }

  bool IsFunction(size_t i) const {
    return tokens_[i].kind == TokenKind::Word && i + 1 < tokens_.size() && IsSymbol(tokens_[i + 1], u"(");
  }

  void CollectTables() {
    for (size_t i = 0; i + 1 < tokens_.size(); ++i) {
      const bool names =
          Is(tokens_[i], u"from") || Is(tokens_[i], u"join") || Is(tokens_[i], u"update") || Is(tokens_[i], u"into");
      if (names && IsName(tokens_[i + 1])) out_.tables << tokens_[i + 1].text.toString();
    }
  }

  /// Rows of one table, each as it stands: only those can be written through the result.
  bool IsPlainSelect() const {
    if (out_.tables.size() != 1) return false;
    bool inFieldList = true;
    for (size_t i = 0; i < tokens_.size(); ++i) {
      const Token& token = tokens_[i];
      if (Is(token, u"distinct") || Is(token, u"group")) return false;
      if (inFieldList && IsFunction(i)) return false;
      if (!Is(token, u"from")) continue;
      if (i + 2 < tokens_.size() && IsSymbol(tokens_[i + 2], u",")) return false;
      inFieldList = false;
    }
    return true;
  }

  std::vector<Token> tokens_;
  ComparedColumn compared_;
  Translation out_;
};

void AppendKey(std::string& key, QStringView text) {
  const size_t start = key.size();
  key.resize(start + static_cast<size_t>(text.size()));
  char* out = key.data() + start;
  for (QChar c : text) {
    const char16_t u = c.unicode();
    if (u > 127) {  // a name in another script: rare, so it may take its time
      key.resize(start);
      key += text.toString().toLower().toStdString();
      return;
    }
    *out++ = static_cast<char>(u >= 'A' && u <= 'Z' ? u + 32 : u);
  }
}

}  // namespace

QString TextOf(const Literal& literal) {
  QString text = literal.text.toString();
  if (literal.text.contains(u"''")) text.replace(u"''"_s, u"'"_s);
  return text;
}

void CutStatement(QStringView statement, Cut& cut) {
  cut.key.clear();
  cut.literals.clear();
  Scanner scanner(statement);
  for (Token token = scanner.Next(); token.kind != TokenKind::End; token = scanner.Next()) {
    if (IsLiteral(token)) {
      const Literal::Kind kind = token.kind == TokenKind::Number ? Literal::Kind::Number
                                 : token.kind == TokenKind::Text ? Literal::Kind::Text
                                                                 : Literal::Kind::Date;
      cut.key.push_back('?');
      cut.literals.push_back({kind, token.text});
    } else if (token.kind == TokenKind::Bracketed) {
      cut.key.push_back('[');
      AppendKey(cut.key, token.text);
    } else {
      AppendKey(cut.key, token.text);
    }
    cut.key.push_back(' ');
  }
}

Translation Translate(QStringView statement) {
  std::vector<Token> tokens;
  Scanner scanner(statement);
  for (Token token = scanner.Next(); token.kind != TokenKind::End; token = scanner.Next()) tokens.push_back(token);
  return Writer(std::move(tokens)).Write();
}

Date ParseDateLiteral(QStringView text) {
  static const QRegularExpression pattern(
      uR"(^\s*(\d{1,2})[/-](\d{1,2})[/-](\d{2,4})(?:\s+(\d{1,2}):(\d{2})(?::(\d{2}))?\s*([AP]M)?)?\s*$)"_s,
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = pattern.match(text);
  if (!match.hasMatch()) throw Failure(u"Syntax error in date in query expression '#%1#'."_s.arg(text));
  int year = match.captured(3).toInt();
  if (match.capturedLength(3) == 2) year += year < 30 ? 2000 : 1900;
  const Date day = Date::FromParts(year, match.captured(1).toInt(), match.captured(2).toInt());
  if (match.captured(4).isEmpty()) return day;
  int hour = match.captured(4).toInt();
  if (!match.captured(7).isEmpty()) hour = hour % 12 + (match.captured(7).toUpper() == "PM"_L1 ? 12 : 0);
  return day + (hour * 3600 + match.captured(5).toInt() * 60 + match.captured(6).toInt()) / 86400.0;
}

}  // namespace jet
