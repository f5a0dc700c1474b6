#include "template_engine/Variables.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct ToText
{
    QString operator()(const QString& text) const { return text; }
    QString operator()(qint16 number) const { return QString::number(number); }
    QString operator()(bool truth) const { return truth ? u"True"_s : u"False"_s; }
    QString operator()(float number) const { return singleToText(number); }

    QString operator()(const std::shared_ptr<const TextObject>& object) const
    {
        if (object == nullptr) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        return object->text();
    }

    QString operator()(const std::shared_ptr<const VariableRows>& /*rows*/) const
    {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
};

} // namespace

void Variables::Add(QStringView key, VariableValue value)
{
    if (m_values.size() == m_values.capacity()) {
        makeRoom();
    }
    m_shape = m_shape->with(key);
    m_values.push_back(std::move(value));
}

void Variables::Add(QStringView key, VariableRows rows)
{
    Add(key, std::make_shared<const VariableRows>(std::move(rows)));
}

// Most rows grow as long as the rows before them that began alike. Four keys are waited for, since short beginnings are
// common to rows of different kinds.
void Variables::makeRoom()
{
    constexpr int firstRoom = 4;
    const int count = m_shape->size();
    const int room = count < firstRoom ? firstRoom : std::max(m_shape->longest(), count * 2);
    m_values.reserve(static_cast<std::size_t>(room));
}

bool Variables::exists(QStringView key) const
{
    return find(names().find(key)) != nullptr;
}

const QString& Variables::Key(int index) const
{
    if (index < 1 || index > Count()) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return m_shape->key(index - 1);
}

const VariableValue& Variables::Item(int index) const
{
    if (index < 1 || index > Count()) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return m_values[static_cast<std::size_t>(index - 1)];
}

const VariableValue& Variables::Item(QStringView key) const
{
    const VariableValue* value = find(names().find(key));
    if (value == nullptr) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"There is no variable \"%1\"."_s.arg(key));
    }
    return *value;
}

QString textOf(const VariableValue& value)
{
    return std::visit(ToText(), value);
}

const VariableRows& rowsOf(const VariableValue& value)
{
    static const VariableRows noRows;
    const auto* rows = std::get_if<std::shared_ptr<const VariableRows>>(&value);
    if (rows == nullptr) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return *rows == nullptr ? noRows : **rows;
}
