<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<dependencies>
    <dependency catalog="FormVendelTr_Us"/>
</dependencies>
<context>
    <name>FormVendelMessages</name>
    <message>
        <source>Total ticket</source>
        <translation>Ticket total</translation>
    </message>
</context>
</TS>
