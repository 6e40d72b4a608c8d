"""What the headers tell of each flat function, as plain text by the name of the tag."""

from contracts import contracts


def prose_of(block):
    return " ".join(line.strip() for line in block.prose).strip()


def contract_words(root, names):
    """By function: `description`, and the tags that it has (`missing`, `mask`, `weights`, `divisor`, `empty` and more)."""
    held = list(contracts(root))
    descriptions = {}
    for contract in held:
        descriptions.setdefault(contract.declaration.name, prose_of(contract.prose.function))
    words = {}
    for contract in held:
        name = contract.declaration.name
        if name in names and name not in words:
            own, of = descriptions[name], contract.flat_form_of
            told = [descriptions.get(of, ""), own] if of else [own]
            words[name] = {"description": " ".join(text for text in told if text), **contract.tags}
    return words
