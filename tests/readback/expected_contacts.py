# SPDX-License-Identifier: MIT
"""What the files of plain-contacts.json must hold, by the formats' rules.

Of a row only the cells that are not empty are named; all others must be empty.
"""


def numbered(columns, count):
    return [column.replace("%", str(n)) for n in range(1, count + 1)
            for column in columns.split(",")]


HEADERS = {
    "common": "Given Name,Additional Name,Family Name,Given Name Yomi,Additional Name Yomi,"
              "Family Name Yomi,Name Prefix,Name Suffix,Nickname,Birthday,Notes,"
              "Organization 1 - Type,Organization 1 - Name,Organization 1 - Title,"
              "Organization 1 - Department,IM 1 - Service,IM 1 - Value".split(",")
    + numbered("Address % - Type,Address % - City,Address % - Street,Address % - Postal Code,"
               "Address % - Country", 2)
    + numbered("Phone % - Type,Phone % - Value", 3)
    + numbered("E-mail % - Type,E-mail % - Value", 2)
    + numbered("Event % - Type,Event % - Value", 1)
    + numbered("Website % - Type,Website % - Value", 1),

    "tavero": "Prefix,FirstName,FirstNameYomi,MiddleName,LastName,LastNameYomi,Suffix,NickName,"
              "Company,Department,JobTitle,Birthday,Notes".split(",")
    + numbered("Address % - Type,Address % - Street,Address % - City,Address % - State,"
               "Address % - Postal Code,Address % - Country", 2)
    + numbered("Phone % - Type,Phone % - Value", 3)
    + numbered("E-mail % - Type,E-mail % - Value", 2)
    + numbered("Date % - Type,Date % - Value", 1)
    + numbered("IM % - Type,IM % - Service,IM % - User", 1)
    + numbered("URL % - Type,URL % - Value", 1)
    + numbered("Related % - Type,Related % - Value", 1),

    "google": "Name,Given Name,Additional Name,Family Name,Yomi Name,Given Name Yomi,"
              "Additional Name Yomi,Family Name Yomi,Name Prefix,Name Suffix,Initials,Nickname,"
              "Short Name,Maiden Name,Birthday,Gender,Location,Billing Information,"
              "Directory Server,Mileage,Occupation,Hobby,Sensitivity,Priority,Subject,Notes,"
              "Language,Photo,Group Membership".split(",")
    + numbered("E-mail % - Type,E-mail % - Value", 2)
    + numbered("Phone % - Type,Phone % - Value", 3)
    + numbered("Address % - Type,Address % - Formatted,Address % - Street,Address % - City,"
               "Address % - PO Box,Address % - Region,Address % - Postal Code,"
               "Address % - Country,Address % - Extended Address", 2)
    + numbered("Organization % - Type,Organization % - Name,Organization % - Yomi Name,"
               "Organization % - Title,Organization % - Department,Organization % - Symbol,"
               "Organization % - Location,Organization % - Job Description", 1)
    + numbered("Relation % - Type,Relation % - Value", 1)
    + numbered("Website % - Type,Website % - Value", 1)
    + numbered("Event % - Type,Event % - Value", 1)
    + numbered("Custom Field % - Type,Custom Field % - Value", 1),

    "outlook": "First Name,Middle Name,Last Name,Title,Suffix,Nickname,Given Yomi,Surname Yomi,"
               "E-mail Address,E-mail 2 Address,Home Phone,Business Phone,Mobile Phone,Car Phone,"
               "Other Phone,Primary Phone,Pager,Business Fax,Home Fax,Other Fax,"
               "Company Main Phone,Callback,Radio Phone,Telex,TTY/TDD Phone,IMAddress,Job Title,"
               "Department,Company,Office Location,Manager's Name,Assistant's Name,"
               "Assistant's Phone,Company Yomi".split(",")
    + [f"{kind} {part}" for kind in ("Business", "Home", "Other")
       for part in ("Street", "City", "State", "Postal Code", "Country/Region")]
    + "Spouse,Schools,Hobby,Location,Web Page,Anniversary,Birthday,Notes".split(","),
}

CELLS = {
    "common": [{
        "Given Name": "Mia", "Additional Name": "Ann", "Family Name": "Berg",
        "Name Prefix": "Dr.", "Name Suffix": "jr.", "Nickname": "Mimi",
        "Birthday": "1985-04-12", "Notes": "Likes tea", "Organization 1 - Name": "Acme",
        "Organization 1 - Title": "Pilot", "Organization 1 - Department": "Flight",
        "Address 1 - Type": "home", "Address 1 - City": "Berlin BE",
        "Address 1 - Street": "Lindenweg 7", "Address 1 - Postal Code": "10115",
        "Address 1 - Country": "Germany", "Address 2 - Type": "work",
        "Address 2 - City": "Dresden SN", "Address 2 - Street": "Rollfeld 2",
        "Address 2 - Postal Code": "01067", "Address 2 - Country": "Germany",
        "Phone 1 - Type": "mobile", "Phone 1 - Value": "+49 171 5550101",
        "Phone 2 - Type": "work", "Phone 2 - Value": "+49 30 5550102",
        "Phone 3 - Type": "home fax", "Phone 3 - Value": "+49 30 5550103",
        "E-mail 1 - Type": "work", "E-mail 1 - Value": "mia@acme.example",
        "E-mail 2 - Type": "home", "E-mail 2 - Value": "mia@berg.example",
        "Website 1 - Type": "home page", "Website 1 - Value": "https://berg.example/mia",
    }, {
        "Given Name": "Ben", "Family Name": "Stone", "Birthday": "1990-12-03",
        "Phone 1 - Type": "home", "Phone 1 - Value": "+1 555 0104",
        "E-mail 1 - Type": "home", "E-mail 1 - Value": "ben@stone.example",
    }, {
        "Given Name": "Zoë", "Additional Name": "Müller", "Family Name": "王",
        "Notes": "Größe 42", "Address 1 - Type": "home", "Address 1 - City": "Zürich",
        "Address 1 - Postal Code": "8001", "Address 1 - Country": "Schweiz",
        "Phone 1 - Type": "mobile", "Phone 1 - Value": "+41 79 5550105",
    }, {
        "Organization 1 - Name": "Blitz Taxi",
        "Phone 1 - Type": "main", "Phone 1 - Value": "030 19410",
    }, {
        "Given Name": "Ida", "Family Name": "Falk",
        "IM 1 - Service": "Skype", "IM 1 - Value": "ida.falk",
        "Address 1 - Type": "other", "Address 1 - City": "Kiel SH",
        "Address 1 - Street": "Kai 9", "Address 1 - Postal Code": "24103",
        "Address 1 - Country": "Germany",
        "Event 1 - Type": "anniversary", "Event 1 - Value": "2023-01-02",
    }],

    "tavero": [{
        "Prefix": "Dr.", "FirstName": "Mia", "MiddleName": "Ann", "LastName": "Berg",
        "Suffix": "jr.", "NickName": "Mimi", "Company": "Acme", "Department": "Flight",
        "JobTitle": "Pilot", "Birthday": "1985-04-12", "Notes": "Likes tea",
        "Address 1 - Type": "home", "Address 1 - Street": "Lindenweg 7",
        "Address 1 - City": "Berlin", "Address 1 - State": "BE",
        "Address 1 - Postal Code": "10115", "Address 1 - Country": "Germany",
        "Address 2 - Type": "work", "Address 2 - Street": "Rollfeld 2",
        "Address 2 - City": "Dresden", "Address 2 - State": "SN",
        "Address 2 - Postal Code": "01067", "Address 2 - Country": "Germany",
        "Phone 1 - Type": "mobile", "Phone 1 - Value": "+49 171 5550101",
        "Phone 2 - Type": "work", "Phone 2 - Value": "+49 30 5550102",
        "Phone 3 - Type": "home fax", "Phone 3 - Value": "+49 30 5550103",
        "E-mail 1 - Type": "work", "E-mail 1 - Value": "mia@acme.example",
        "E-mail 2 - Type": "home", "E-mail 2 - Value": "mia@berg.example",
        "URL 1 - Type": "home page", "URL 1 - Value": "https://berg.example/mia",
    }, {
        "FirstName": "Ben", "LastName": "Stone", "Birthday": "1990-12-03",
        "Phone 1 - Type": "home", "Phone 1 - Value": "+1 555 0104",
        "E-mail 1 - Type": "home", "E-mail 1 - Value": "ben@stone.example",
    }, {
        "FirstName": "Zoë", "MiddleName": "Müller", "LastName": "王", "Notes": "Größe 42",
        "Address 1 - Type": "home", "Address 1 - City": "Zürich",
        "Address 1 - Postal Code": "8001", "Address 1 - Country": "Schweiz",
        "Phone 1 - Type": "mobile", "Phone 1 - Value": "+41 79 5550105",
    }, {
        "Company": "Blitz Taxi", "Phone 1 - Type": "main", "Phone 1 - Value": "030 19410",
    }, {
        "FirstName": "Ida", "LastName": "Falk", "Address 1 - Type": "other",
        "Address 1 - Street": "Kai 9", "Address 1 - City": "Kiel", "Address 1 - State": "SH",
        "Address 1 - Postal Code": "24103", "Address 1 - Country": "Germany",
        "Date 1 - Type": "anniversary", "Date 1 - Value": "2023-01-02",
        "IM 1 - Type": "home", "IM 1 - Service": "skype", "IM 1 - User": "ida.falk",
        "Related 1 - Type": "sister", "Related 1 - Value": "Eva",
    }],

    # The name stands in one column, marked as a vCard marks it; streets have lost their blanks.
    "google": [{
        "Name": "Berg:Mia;Ann;Dr.;jr.", "Nickname": "Mimi", "Birthday": "--04-12",
        "Notes": "Likes tea",
        "E-mail 1 - Type": "WORK", "E-mail 1 - Value": "mia@acme.example",
        "E-mail 2 - Type": "HOME", "E-mail 2 - Value": "mia@berg.example",
        "Phone 1 - Type": "CELL", "Phone 1 - Value": "+49 171 5550101",
        "Phone 2 - Type": "WORK", "Phone 2 - Value": "+49 30 5550102",
        "Phone 3 - Type": "HOMEFAX", "Phone 3 - Value": "+49 30 5550103",
        "Address 1 - Type": "HOME", "Address 1 - Street": "Lindenweg7",
        "Address 1 - City": "Berlin", "Address 1 - Region": "BE",
        "Address 1 - Postal Code": "10115", "Address 1 - Country": "de",
        "Address 2 - Type": "WORK", "Address 2 - Street": "Rollfeld2",
        "Address 2 - City": "Dresden", "Address 2 - Region": "SN",
        "Address 2 - Postal Code": "01067", "Address 2 - Country": "de",
        "Organization 1 - Name": "Acme", "Organization 1 - Title": "Pilot",
        "Organization 1 - Department": "Flight",
        "Website 1 - Type": "HomePage", "Website 1 - Value": "https://berg.example/mia",
    }, {
        "Name": "Stone:Ben;;;", "Birthday": "--12-03",
        "E-mail 1 - Type": "HOME", "E-mail 1 - Value": "ben@stone.example",
        "Phone 1 - Type": "HOME", "Phone 1 - Value": "+1 555 0104",
    }, {
        "Name": "王:Zoë;Müller;;", "Notes": "Größe 42",
        "Phone 1 - Type": "CELL", "Phone 1 - Value": "+41 79 5550105",
        "Address 1 - Type": "HOME", "Address 1 - City": "Zürich",
        "Address 1 - Postal Code": "8001", "Address 1 - Country": "ch",
    }, {
        "Name": ":;;;", "Phone 1 - Type": "MAIN", "Phone 1 - Value": "030 19410",
        "Organization 1 - Name": "Blitz Taxi",
    }, {
        # The event's columns stay empty: its day is in the notes.
        "Name": "Falk:Ida;;;",
        "Notes": "\tOther Contact Info:\t<<Commemoration Day:--01-02>>\t",
        "Address 1 - Type": "Other", "Address 1 - Street": "Kai9", "Address 1 - City": "Kiel",
        "Address 1 - Region": "SH", "Address 1 - Postal Code": "24103",
        "Address 1 - Country": "de",
        "Relation 1 - Type": "Sister", "Relation 1 - Value": "Eva",
        "Custom Field 1 - Type": "Skype", "Custom Field 1 - Value": "ida.falk",
    }],

    # Mobile numbers are other phones; the title is the job, and the prefix is in the notes. Each
    # street holds the whole address.
    "outlook": [{
        "First Name": "Mia", "Middle Name": "Ann", "Last Name": "Berg", "Title": "Pilot",
        "Suffix": "jr.", "Nickname": "Mimi", "E-mail Address": "mia@acme.example",
        "E-mail 2 Address": "mia@berg.example", "Business Phone": "+49 30 5550102",
        "Other Phone": "+49 171 5550101", "Home Fax": "+49 30 5550103", "Job Title": "Pilot",
        "Department": "Flight", "Company": "Acme",
        "Business Street": "Rollfeld2;;Dresden;SN;01067", "Business City": "Dresden",
        "Business State": "SN", "Business Postal Code": "01067",
        "Business Country/Region": "de",
        "Home Street": "Lindenweg7;;Berlin;BE;10115", "Home City": "Berlin",
        "Home State": "BE", "Home Postal Code": "10115", "Home Country/Region": "de",
        "Web Page": "https://berg.example/mia", "Birthday": "04/12",
        "Notes": "Likes tea\tOther Contact Info:\t<<Prefix:Dr.>>\t",
    }, {
        "First Name": "Ben", "Last Name": "Stone", "E-mail Address": "ben@stone.example",
        "Home Phone": "+1 555 0104", "Birthday": "12/03",
    }, {
        "First Name": "Zoë", "Middle Name": "Müller", "Last Name": "王",
        "Other Phone": "+41 79 5550105", "Home Street": ";;Zürich;;8001",
        "Home City": "Zürich", "Home Postal Code": "8001", "Home Country/Region": "ch",
        "Notes": "Größe 42",
    }, {
        "Other Phone": "030 19410", "Company": "Blitz Taxi",
    }, {
        "First Name": "Ida", "Last Name": "Falk", "IMAddress": "ida.falk",
        "Other Street": "Kai9;;Kiel;SH;24103", "Other City": "Kiel", "Other State": "SH",
        "Other Postal Code": "24103", "Other Country/Region": "de", "Spouse": "Sister:Eva",
        "Anniversary": "01/02",
    }],
}
