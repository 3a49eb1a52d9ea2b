<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="fr_FR">
<context>
    <name>FormVendelMessages</name>
    <message>
        <source>Total ticket</source>
        <translation>Ticket total</translation>
    </message>
    <message>
        <source>Payer</source>
        <translation>Pay</translation>
    </message>
    <message>
        <source>,</source>
        <translation>.</translation>
    </message>
    <message numerus="yes">
        <source>Supprimer le(s) %n doublon(s) note(s) X...</source>
        <translation>
            <numerusform>Delete %n double marked X...</numerusform>
            <numerusform>Delete %n doubles marked X...</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormVendel</name>
    <message>
        <source>Vendel</source>
        <translation>The till</translation>
    </message>
    <message>
        <source>Payer</source>
        <translation>Pay now</translation>
    </message>
</context>
<context>
    <name>FormVendelStart</name>
    <message>
        <source>Système Vendel</source>
        <translation>Vendel System</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sure</translation>
    </message>
</context>
</TS>
