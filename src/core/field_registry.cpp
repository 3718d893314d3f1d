#include "core/field_registry.h"

#include <array>
#include <unordered_map>

#include "core/job.h"

namespace quillmark {

namespace {

struct FieldRow {
    int number;
    std::string_view marker;
    float sortKey;
    std::string_view description;  // shown with a blank in front
};

// clang-format off
constexpr FieldRow kRows[] = {
    // n  marker                     sort key  description
    {  1, "[document date]",                0, "Date to appear on document(s) being prepared (e.g.  April 16, 2005)"},
    {  2, "[seller lawfirm]",            1002, "Full name of seller attorney's firm (e.g.  Smith & Jones, P.C.)"},
    {  3, "[seller atty]",               1003, "Full name of seller's attorney (e.g.  Mary A. Smith)"},
    {  4, "[seller atty addr 1]",        1004, "Seller attorney's street address (e.g.  100 Main Street)"},
    {  5, "[seller atty addr 2]",        1005, "Seller attorney's suite/floor/apartment (e.g.  2nd Floor)"},
    {  6, "[seller atty cy,st zip]",     1006, "Seller attorney's city, state and zip code (e.g.  Anytown, CT 06123)"},
    {  7, "[seller atty phone]",         1007, "Seller attorney's telephone number, incl. area code, auto-fmt (e.g.  8605550100)"},
    {  8, "[seller atty fax]",           1008, "Seller attorney's fax number, incl. area code, auto-fmt (e.g.  8605550101)"},
    {  9, "[seller atty email]",         1009, "Seller attorney's E-mail address (e.g.  msmith@smithjones.example)"},
    { 10, "[seller atty's fee]",         4192, "Seller attorney's fee for closing (e.g.  600.00), auto-fmt"},
    { 11, "[buyer lawfirm]",             1011, "Full name of buyer attorney's firm (e.g.  Brown & Green, LLC)"},
    { 12, "[buyer atty]",                1012, "Full name of buyer's attorney (e.g.  Robert B. Brown)"},
    { 13, "[buyer atty addr 1]",         1013, "Buyer attorney's street address (e.g.  200 Main Street)"},
    { 14, "[buyer atty addr 2]",         1014, "Buyer attorney's suite/floor/apartment (e.g.  2nd Floor)"},
    { 15, "[buyer atty cy,st zip]",      1015, "Buyer attorney's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 16, "[buyer atty phone]",          1016, "Buyer attorney's phone number, incl. area code, auto-fmt (e.g.  8605550102)"},
    { 17, "[buyer atty fax]",            1017, "Buyer attorney's fax number, incl. area code, auto-fmt (e.g.  8605550103)"},
    { 18, "[buyer atty email]",          1018, "Buyer attorney's E-mail address (e.g.  rbrown@browngreen.example)"},
    { 19, "[seller 1 agent]",         2027.4F, "Full name of Seller #1's authorized agent signing documents (e.g.  James K. Roe)"},
    { 20, "[seller 1 agent title]",   2027.5F, "Seller #1's authorized agent's official title (e.g.  Manager\\President)"},
    { 21, "[seller 1 name]",             2021, "Full name of Seller #1/Mortgagee (e.g.  John J. Doe)"},
    { 22, "[names of members]",       2027.2F, "Full names of all members of seller LLC separated with commas (e.g.  John J. Doe, Jane E. Doe)"},
    { 23, "[seller 1 addr 1]",           2023, "Seller #1's/Mortgagee's street address (e.g.  102 Any Street)"},
    { 24, "[seller 1 addr 2]",           2024, "Seller #1's/Mortgagee's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    { 25, "[seller 1 cy,st zip]",        2025, "Seller #1's/Mortgagee's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 26, "[seller 1 tax ID#]",       2027.1F, "Seller #1's Tax Identification Number (e.g.  043123456), auto-fmt"},
    { 27, "[seller 1 phone]",            2027, "Seller #1's telephone number, incl. area code, auto-fmt (e.g.  8605550104)"},
    { 28, "[seller 2 name]",             2028, "Full name of Seller #2/Mortgagee (e.g.  Jane E. Doe)"},
    { 29, "[seller 2 addr 1]",           2029, "Seller #2's street address (e.g.  102 Any Street)"},
    { 30, "[seller 2 addr 2]",           2030, "Seller #2's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    { 31, "[seller 2 cy,st zip]",        2031, "Seller #2's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 32, "[seller 2 tax ID#]",          2032, "Seller #2's Tax Identification Number (e.g.  043123456), auto-fmt"},
    { 33, "[seller 2 phone]",            2033, "Seller #2's telephone number, incl. area code, auto-fmt (e.g.  8605550105)"},
    { 34, "[seller fwd addr 1]",         2034, "Seller's/Mortgagee's forwarding address - street address (e.g.  1 New Street)"},
    { 35, "[seller fwd addr 2]",         2035, "Seller's/Mortgagee's forwarding address - apartment\\unit\\suite number (e.g.  Apt. 1)"},
    { 36, "[seller fwd cy,st zip]",      2036, "Seller's/Mortgagee's forwarding address - city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 37, "[administrator]",             2037, "Administrator's full name (e.g.  Mary R. Doe)"},
    { 38, "[admin addr 1]",              2038, "Administrator's street address  (e.g.  101 Main Street)"},
    { 39, "[admin addr 2]",              2039, "Administrator's apartment\\unit\\suite\\floor number (e.g.  Suite 1A)"},
    { 40, "[admin cy,st zip]",           2040, "Administrator's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 41, "[executor]",                  2041, "Executor's full name (e.g.  Mary R. Doe)"},
    { 42, "[executor addr 1]",           2042, "Executor's street address  (e.g.  101 Main Street)"},
    { 43, "[executor addr 2]",           2043, "Executor's apartment\\unit\\suite\\floor number (e.g.  Suite 1A)"},
    { 44, "[executor cy,st zip]",        2044, "Executor's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 45, "[decedent]",                  2045, "Decedent's full name (e.g.  John J. Doe)"},
    { 46, "[decedent addr 1]",           2046, "Decedent's street address  (e.g.  102 Any Street)"},
    { 47, "[decedent addr 2]",           2047, "Decedent's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    { 48, "[decedent cy,st zip]",        2048, "Decedent's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 49, "[conservator]",               2049, "Conservator's full name (e.g.  Mary R. Doe)"},
    { 50, "[conservator addr 1]",        2050, "Conservator's street address  (e.g.  101 Main Street)"},
    { 51, "[conservator addr 2]",        2051, "Conservator's apartment\\unit\\suite\\floor number (e.g.  Suite 1A)"},
    { 52, "[conservator cy,st zip]",     2052, "Conservator's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 53, "[conserved party]",           2053, "Conserved party's full name (e.g.  John J. Doe)"},
    { 54, "[trustee]",                   2054, "Trustee's full name (e.g.  Mary R. Doe)"},
    { 55, "[trustee addr 1]",            2055, "Trustee's street address  (e.g.  101 Main Street)"},
    { 56, "[trustee addr 2]",            2056, "Trustee's apartment\\unit\\suite\\floor number (e.g.  Suite 1A)"},
    { 57, "[trustee cy,st zip]",         2057, "Trustee's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 58, "[fiduciary article #]",       2058, "Article number of Trust under which trustee is appointed (e.g.  'IV' or '4')"},
    { 59, "[buyer 1 name]",              3059, "Full name of Buyer #1 (e.g.  John J. Doe)"},
    { 60, "[buyer 1 addr 1]",            3060, "Buyer #1's street address (e.g.  102 Any Street)"},
    { 61, "[buyer 1 addr 2]",            3061, "Buyer #1's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    { 62, "[buyer 1 cy,st zip]",         3062, "Buyer #1's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 63, "[buyer 1 tax ID#]",           3063, "Buyer #1's Tax Identification Number (e.g.  043123456), auto-fmt"},
    { 64, "[buyer 2 name]",              3064, "Full name of Buyer #2 (e.g.  Jane E. Doe)"},
    { 65, "[buyer 2 addr 1]",            3065, "Buyer #2's street address (e.g.  102 Any Street)"},
    { 66, "[buyer 2 addr 2]",            3066, "Buyer #2's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    { 67, "[buyer 2 cy,st zip]",         3067, "Buyer #2's city, state and zip code (e.g.  Anytown, CT 06123)"},
    { 68, "[buyer 2 tax ID#]",           3068, "Buyer #2's Tax Identification Number (e.g.  043123456), auto-fmt"},
    { 69, "[contract date]",             4069, "Date of Real Estate Purchase and Sale Agreement (e.g.  April 16, 2005)"},
    { 70, "[property address 1]",        4070, "Street address of property being sold (e.g.  1001 Park Place)"},
    { 71, "[property address 2]",        4071, "Apartment\\unit\\suite\\lot number of property being sold (e.g.  Unit 10)"},
    { 72, "[property cy,st zip]",        4072, "City, state and zip code of property being sold (e.g.  Anytown, CT 06123)"},
    { 73, "[construction mm/yyyy]",      4073, "Date (month & year) of construction from municipal assessor's card, in MM/YYYY format (e.g.  01/2005)"},
    { 74, "[deed recording vol]",        4074, "Recording volume of original deed into seller (e.g.  1234)"},
    { 75, "[deed recording page]",       4075, "Recording page of original deed into seller (e.g.  56)"},
    { 76, "[sale price numeric]",        4076, "Contract purchase/sales price in numbers (e.g.  500000), auto-fmt"},
    { 77, "[binder deposit]",            4077, "Binder/initial deposit amount in numbers (e.g.  5000), auto-fmt"},
    { 78, "[contract deposit]",          4078, "Contract deposit amount in numbers (e.g.  45000), auto-fmt"},
    { 79, "[closing date]",              4079, "Date of closing (e.g.  April 16, 2005)"},
    { 80, "[closing time]",              4080, "Time of Closing, include am/pm (e.g.  5:00 P.M.)"},
    { 81, "[proration date]",            4081, "Date upon which closing statement adjustments will be based (e.g.  April 16, 2005)"},
    { 82, "[items incl in sale]",        4082, "List of items to be included in sale (e.g.  dishwasher, dryer, freezer)"},
    { 83, "[items excl from sale]",      4083, "List of items to be excluded from sale (e.g.  gold door knocker, chandelier)"},
    { 84, "[leased fixtures]",           4084, "Leased fixtures to be transferred with property (e.g.  water heater), include Lessor's contact info if applicable"},
    { 85, "[realtor 1 name]",            4085, "Full name of first real estate agency involved in transaction (e.g.  Any Realty, Inc.)"},
    { 86, "[realtor 1 commission]",      4086, "Commission charged by first real estate agency, in numbers (e.g.  15000) OR percent (e.g.  6%), auto-fmt"},
    { 87, "[realtor 2 name]",            4087, "Full name of second real estate agency involved in transaction (e.g.  Town & Country Homes, LLC)"},
    { 88, "[realtor 2 commission]",      4088, "Commission charged by second real estate agency, in numbers (e.g.  15000) OR percent (e.g.  6%), auto-fmt"},
    { 89, "[buyer's mtg amount]",        4089, "Buyer's mortgage amount in numbers (e.g.  450000), auto-fmt"},
    { 90, "[buyer's mtg term]",          4090, "Term of buyer's mortgage in years (e.g.  30) or (e.g.  no more than 30)"},
    { 91, "[mtg contingency date]",      4091, "Mortgage contingency date (e.g.  April 16, 2005)"},
    { 92, "[tenancy type]",              4092, "Manner in which title is to be held by buyers (i.e. 'Joint Tenants' or 'Tenants in Common')"},
    { 93, "[repairs by seller]",         4093, "Description of repairs to be completed by seller prior to closing (e.g.  Leaking faucet in kitchen)"},
    { 94, "[insp contingency date]",     4094, "Inspection contingency date (e.g.  April 16, 2005)"},
    { 95, "[payoff 1 servicer]",         5095, "Full name of entity servicing first mortgage being paid off (e.g.  Any Mortgage Servicing, LLC)"},
    { 96, "[payoff 1 addr 1]",           5096, "Street address of entity servicing first mortgage being paid off (e.g.  500 Finance Drive)"},
    { 97, "[payoff 1 addr 2]",           5097, "Suite/floor/apartment of entity servicing first mortgage being paid off (e.g.  Suite 101)"},
    { 98, "[payoff 1 cy,st zip]",        5098, "City, state and zip code of entity servicing first mortgage being paid off (e.g.  Anycity, OH 43210)"},
    { 99, "[payoff 1 loan #]",           5099, "Loan number of first mortgage being paid off (e.g.  1234567890)"},
    {100, "[payoff 1 amount]",           5100, "Exact amount, in numbers, of payoff for first mortgage being paid off (e.g.  400000.99), auto-fmt"},
    {101, "[payoff 1 method]",           5101, "Method by which first mortgage is being paid off (e.g.  'pay by wire')  [If by check, number is optional]"},
    {102, "[payoff 1 date]",             5102, "Date on payoff statement for first mortgage being paid off (e.g.  April 16, 2005)"},
    {103, "[payoff 1 mortgagor]",        5103, "Full name(s) of original mortgagor(s) on first mortgage being paid off (e.g.  John J. Doe)"},
    {104, "[payoff 1 mortgagee]",        5104, "Name of original mortgagee on first mortgage being paid off (e.g.  First Savings Bank of Anytown)"},
    {105, "[mortgage 1 amount]",         5105, "Original principal amount, in numbers, of first mortgage being paid off (e.g.  450000), auto-fmt"},
    {106, "[mortgage 1 date]",           5106, "Date of first mortgage being paid off (e.g.  April 16, 2005)"},
    {107, "[mtg 1 recording date]",      5107, "Date of recording of first mortgage being paid off (e.g.  April 16, 2005)"},
    {108, "[mtg 1 recording vol]",       5108, "Recording volume of first mortgage being paid off (e.g.  1234)"},
    {109, "[mtg 1 recording page]",      5109, "Recording page of first mortgage being paid off (e.g.  56)"},
    {110, "[mtg 1 assignee]",            5110, "If mortgage has been assigned, name of current mortgagee on first mortgage (e.g.  Any National Bank)"},
    {111, "[mtg 1 assignment vol]",      5111, "Recording volume of assignment for first mortgage being paid off (e.g.  1234)"},
    {112, "[mtg 1 assignment page]",     5112, "Recording page of assignment for first mortgage being paid off (e.g.  56)"},
    {113, "[payoff 2 servicer]",         5113, "Full name of entity servicing second mortgage being paid off (e.g.  Home Equity Servicing, Inc.)"},
    {114, "[payoff 2 addr 1]",           5114, "Street address of entity servicing second mortgage being paid off (e.g.  600 Finance Drive)"},
    {115, "[payoff 2 addr 2]",           5115, "Suite/floor/apartment of entity servicing second mortgage being paid off (e.g.  Suite 101)"},
    {116, "[payoff 2 cy,st zip]",        5116, "City, state and zip code of entity servicing second mortgage being paid off (e.g.  Anycity, OH 43210)"},
    {117, "[payoff 2 loan #]",           5117, "Loan number of second mortgage being paid off (e.g.  1234567890)"},
    {118, "[payoff 2 amount]",           5118, "Exact amount, in numbers, of payoff for second mortgage being paid off (e.g.  400000.99), auto-fmt"},
    {119, "[payoff 2 method]",           5119, "Method by which second mortgage is being paid off (e.g.  'pay by wire')  [If by check, number is optional]"},
    {120, "[payoff 2 date]",             5120, "Date on payoff statement for second mortgage being paid off (e.g.  April 16, 2005)"},
    {121, "[payoff 2 mortgagor]",        5121, "Full name(s) of original mortgagor(s) on second mortgage being paid off (e.g.  John J. Doe)"},
    {122, "[payoff 2 mortgagee]",        5122, "Name of original mortgagee on second mortgage being paid off (e.g.  Anytown Credit Union)"},
    {123, "[mortgage 2 amount]",         5123, "Original principal amount, in numbers, of second mortgage being paid off (e.g.  450000), auto-fmt"},
    {124, "[mortgage 2 date]",           5124, "Date of second mortgage being paid off (e.g.  April 16, 2005)"},
    {125, "[mtg 2 recording date]",      5125, "Date of recording of second mortgage being paid off (e.g.  April 16, 2005)"},
    {126, "[mtg 2 recording vol]",       5126, "Recording volume of second mortgage being paid off (e.g.  1234)"},
    {127, "[mtg 2 recording page]",      5127, "Recording page of second mortgage being paid off (e.g.  56)"},
    {128, "[mtg 2 assignee]",            5128, "If mortgage has been assigned, name of current mortgagee on second mortgage (e.g.  Any National Bank)"},
    {129, "[mtg 2 assignment vol]",      5129, "Recording volume of assignment for second mortgage being paid off (e.g.  1234)"},
    {130, "[mtg 2 assignment page]",     5130, "Recording page of assignment for second mortgage being paid off (e.g.  56)"},
    {131, "[indem mortgagor]",           5131, "Full name(s) of original mortgagor(s) on mortgage for which indemnity is being issued (e.g.  John J. Doe)"},
    {132, "[indem mortgagee]",           5132, "Name of original mortgagee on mortgage for which indemnity is being issued (e.g.  First Savings Bank of Anytown)"},
    {133, "[indem mtg amount]",          5133, "Original principal amount, in numbers, of mortgage for which indemnity is being issued (e.g.  450000), auto-fmt"},
    {134, "[indem mtg date]",            5134, "Date of mortgage for which indemnity is being issued (e.g.  April 16, 2005)"},
    {135, "[indem mtg record date]",     5135, "Date of recording of mortgage for which indemnity is being issued (e.g.  April 16, 2005)"},
    {136, "[indem mtg record vol]",      5136, "Recording volume of mortgage for which indemnity is being issued (e.g.  1234)"},
    {137, "[indem mtg record page]",     5137, "Recording page of mortgage for which indemnity is being issued (e.g.  56)"},
    {138, "[indem compliance date]",     5138, "Date by which seller(s) must complete terms of indemnity agreement (e.g.  April 16, 2005)"},
    {139, "[escrow amount held]",        5139, "Amount, in numbers, to be held in escrow to secure indemnity (e.g.  2500), auto-fmt"},
    {140, "[escrow atty]",               5140, "Full name of attorney/entity holding escrow funds (e.g.  Mary A. Smith)"},
    {141, "[escrow atty addr 1]",        5141, "Street address of attorney/entity holding escrow funds (e.g.  100 Main Street)"},
    {142, "[escrow atty addr 2]",        5142, "Suite/floor/apartment of attorney/entity holding escrow funds (e.g.  2nd Floor)"},
    {143, "[escrow atty cy,st zip]",     5143, "City, state and zip code of attorney/entity holding escrow funds (e.g.  Anytown, CT 06123)"},
    {144, "[escrow atty phone]",         5144, "Telephone number of attorney/entity holding escrow funds, incl. area code, auto-fmt (e.g.  8605550100)"},
    {145, "[note interest rate]",        5145, "Fixed interest rate on note, numerical (e.g.  6.5)"},
    {146, "[note monthly pymt]",         5146, "Amount of monthly payment for note in numbers (e.g.  3500), auto-fmt"},
    {147, "[note first pymt date]",      5147, "Date upon which very first payment on note is due (e.g.  April 16, 2005)"},
    {148, "[note grace period]",         5148, "Grace period for tardy note payments in days (e.g.  30)"},
    {149, "[note late charge]",          5149, "Percentage penalty for late payments on note, numerical (e.g.  10)"},
    {150, "[note maturity date]",        5150, "Maturity date of note (e.g.  April 16, 2015)"},
    {151, "[refi maturity date]",        5151, "Maturity date of 'New-Loan' for contract balloon rider (e.g.  April 16, 2045)"},
    {152, "[seller former name]",        2152, "Seller's former name, on original deed into seller (e.g.  Jane E. Smith)"},
    {153, "[seller current name]",       2153, "Current name of seller whose name appears differently on deed into seller (e.g.  Jane E. Doe)"},
    {154, "[name change date]",          2154, "Date of seller's name change (e.g.  April 16, 2005)"},
    {155, "[name change instr]",         2155, "Instrument of seller's name change (e.g.  Marriage Decree)"},
    {156, "[principal of power]",        2156, "Full name of seller/principal granting power of attorney (e.g.  John J. Doe)"},
    {157, "[principal addr 1]",          2157, "POA Principal's street address (e.g.  102 Any Street)"},
    {158, "[principal addr 2]",          2158, "POA Principal's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    {159, "[principal cy,st zip]",       2159, "POA Principal's city, state and zip code (e.g.  Anytown, CT 06123)"},
    {160, "[date of power]",             2160, "Effective date of power of attorney (e.g.  April 16, 2005)"},
    {161, "[atty in fact]",              2161, "Full name of attorney-in-fact (e.g.  John J. Doe)"},
    {162, "[atty in fact addr 1]",       2162, "Attorney-in-fact's street address (e.g.  102 Any Street)"},
    {163, "[atty in fact addr 2]",       2163, "Attorney-in-fact's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    {164, "[atty in fact c,s,z]",        2164, "Attorney-in-fact's city, state and zip code (e.g.  Anytown, CT 06123)"},
    {165, "[atty in fact 2]",            2165, "Full name of attorney-in-fact #2 (e.g.  Jane E. Doe)"},
    {166, "[atty in fact 2 addr 1]",     2166, "Attorney-in-fact #2's street address (e.g.  102 Any Street)"},
    {167, "[atty in fact 2 addr 2]",     2167, "Attorney-in-fact #2's apartment\\unit\\suite number (e.g.  Unit 1-A)"},
    {168, "[atty in fact 2 c,s,z]",      2168, "Attorney-in-fact #2's city, state and zip code (e.g.  Anytown, CT 06123)"},
    {169, "[POA agent capacity]",        2169, "Capacity in which dual agents are authorized to exercise power of attorney (e.g.  Jointly)"},
    {170, "[annual property tax]",       6170, "Amount of annual real estate tax for property being sold, in numbers (e.g.  6000), auto-fmt"},
    {171, "[sewer adjustment]",          6171, "Annual sewer charge (if payable with taxes) or net credit amt (if not), in numbers (e.g.  100), auto-fmt [or POC]"},
    {172, "[]",                          6172, ""},
    {173, "[water adjustment]",          6173, "Amount, in numbers, of water adjustment (e.g.  50), auto-fmt [or POC if paid outside closing]"},
    {174, "[oil adjustment]",            6174, "Amount, in numbers, of oil adjustment (e.g.  200), auto-fmt [or POC if paid outside closing]"},
    {175, "[monthly common chg]",        6175, "Amount of monthly common charges for property being sold, in numbers (e.g.  120), auto-fmt"},
    {176, "[security deposit]",          6176, "Amount, in numbers, of security deposit advanced by seller's tenant (e.g.  1000), auto-fmt [or POC]"},
    {177, "[monthly rent]",              6177, "Amount of monthly rent for property being sold, in numbers (e.g.  900), auto-fmt"},
    {178, "[closing cost credit]",       6178, "Amount, in numbers, of closing cost credit (e.g.  500), auto-fmt"},
    {179, "[repair credit]",             6179, "Amount, in numbers, of repair credit (e.g.  1500), auto-fmt"},
    {180, "[recording fees]",            6180, "Amount, in numbers, of recording fees (e.g.  30), auto-fmt"},
    {181, "[courier fee]",               6181, "Amount, in numbers, of courier fee (e.g.  20), auto-fmt"},
    {182, "[other disbursement #1]",     6182, "Additional disbursement #1, amount in numbers followed by hyphen & description (e.g.  250 - credit card payoff), auto-fmt"},
    {183, "[other disbursement #2]",     6183, "Additional disbursement #2, amount in numbers followed by hyphen & description (e.g.  250 - credit card payoff), auto-fmt"},
    {184, "[other disbursement #3]",     6184, "Additional disbursement #3, amount in numbers followed by hyphen & description (e.g.  250 - credit card payoff), auto-fmt"},
    {185, "[other disbursement #4]",     6185, "Additional disbursement #4, amount in numbers followed by hyphen & description (e.g.  250 - credit card payoff), auto-fmt"},
    {186, "[names of directors]",        2186, "Full names of all directors of seller corporation separated with commas (e.g.  John J. Doe, Jane E. Doe)"},
    {187, "[town of execution]",         4187, "Town in which documents will be executed (e.g.  Hartford)"},
    {188, "[witness #1]",                4188, "Full name of first witness for document(s) (e.g.  John Q. Public)"},
    {189, "[witness #2]",                4189, "Full name of second witness for document(s) (e.g.  John Q. Public)"},
    {190, "[corporate secretary]",       2190, "Full name of the Secretary for the seller corporation (e.g.  Jane E. Doe)"},
    {191, "[buyer title insur co]",      4191, "Name of buyer's title insurance company (e.g.  First American Title Insurance Company)"},
    {192, "[state of formation]",     2027.3F, "The State in which the seller corporation/LLC was formed/organized (e.g.  Connecticut)"},
    {193, "[other adjustment #1]",    6181.1F, "Additional adjustment #1, NET amount in numbers followed by hyphen & description (e.g.  250 - fire tax), auto-fmt"},
    {194, "[other adjustment #2]",    6181.2F, "Additional adjustment #2, NET amount in numbers followed by hyphen & description (e.g.  250 - fire tax), auto-fmt"},
    {195, "[other adjustment #3]",    6181.3F, "Additional adjustment #3, NET amount in numbers followed by hyphen & description (e.g.  250 - fire tax), auto-fmt"},
    {196, "[other adjustment #4]",    6181.4F, "Additional adjustment #4, NET amount in numbers followed by hyphen & description (e.g.  250 - fire tax), auto-fmt"},
    {197, "[mtgee 1 agent]",          5104.1F, "Full name of authorized agent signing documents for first mortgagee (e.g.  James K. Roe)"},
    {198, "[mtgee 1 agent title]",    5104.2F, "Official title of authorized agent signing documents for first mortgagee (e.g.  President)"},
    {199, "[mtgee 2 agent]",          5122.1F, "Full name of authorized agent signing documents for second mortgagee (e.g.  Susan L. Roe)"},
    {200, "[mtgee 2 agent title]",    5122.2F, "Official title of authorized agent signing documents for second mortgagee (e.g.  President)"},
    {201, "[sched A description]",    4072.1F, "Legal Description of property.  Type OR Copy & Paste (w/ mouse) from title search or commitment [TEXT or IMAGE] (e.g.  All that certain piece or parcel of land known as Lot 7)"},
    {202, "[sched A encumbrances]",   4072.2F, "Exceptions to title (separated by line space).  Type OR Copy & Paste (w/ mouse) from title search or commitment [TEXT ONLY] (e.g.  Utility easement recorded in Volume 1234 at Page 56)"},
    {203, "[smoke detector credit]",  6179.1F, "Amount, in numbers, of smoke detector credit if applicable under PA 14-219 (e.g.  250), auto-fmt"},
    {204, "[original trustee]",       2053.9F, "Full name of ORIGINAL trustee (e.g.  John Q. Public), ONLY IF APPLICABLE [i.e. Seller 1 is a successor trustee]"},
    {205, "[date of probate order]",  2058.1F, "Effective date of probate order appointing trustee (e.g.  April 16, 2005), if applicable"},
    {206, "[trust instrument]",       2057.9F, "Name of instrument appointing trustee (e.g.  John J. Doe 2005 Trust)"},
    {207, "[buyer's mtg rate]",       4090.1F, "Percent interest rate on buyer's mortgage (e.g.  3.75%)"},
    {208, "[search contingen date]",  4091.1F, "Contingency date for buyer to obtain title and municipal searches (e.g.  April 16, 2005)"},
    {209, "[fiduciary type]",         2020.9F, "The capacity in which fiduciary seller is authorized to act (e.g.  Executor)"},
    {210, "[successor agent 1]",         2210, "Full name & address of designated successor agent, if applicable (e.g.  John Q. Public of 102 Any Street, Anytown, CT 06123)"},
    {211, "[successor agent 2]",         2211, "Full name & address of a second successor agent, if applicable (e.g.  Jane E. Public of 102 Any Street, Anytown, CT 06123)"},
    {212, "[other disbursement #5]",     6186, "Additional disbursement #5, amount in numbers followed by hyphen & description (e.g.  250 - credit card payoff), auto-fmt"},
    {213, "[other disbursement #6]",     6187, "Additional disbursement #6, amount in numbers followed by hyphen & description (e.g.  250 - credit card payoff), auto-fmt"},
    {240, "[FIELD]",                      240, "UNDEFINED FIELD VALUE PLACEHOLDER"},
};

constexpr DerivedField kDerived[] = {
    // number  marker                 description
    {1001, "[curr month]",           " Month to appear on document(s) being prepared {*smart field*}"},
    {2001, "[curr day]",             " Day to appear on document(s) being prepared, includes suffix {*smart field*}"},
    {3001, "[curr year]",            " Year to appear on document(s) being prepared {*smart field*}"},
    {1006, "[seller atty city]",     " Seller attorney's city {*smart field*}"},
    {3012, "[buyer atty last name]", " Buyer attorney's last name {*smart field*}"},
    {1015, "[buyer atty city]",      " Buyer attorney's city {*smart field*}"},
    {2021, "[seller 1 first name]",  " First name of Seller #1/Mortgagee, includes middle {*smart field*}"},
    {3021, "[seller 1 last name]",   " Last name of Seller #1/Mortgagee {*smart field*}"},
    {2028, "[seller 2 first name]",  " First name of Seller #2/Mortgagee, includes middle {*smart field*}"},
    {3028, "[seller 2 last name]",   " Last name of Seller #2/Mortgagee {*smart field*}"},
    {2059, "[buyer 1 first name]",   " First name of Buyer #1, includes middle {*smart field*}"},
    {3059, "[buyer 1 last name]",    " Last name of Buyer #1 {*smart field*}"},
    {2064, "[buyer 2 first name]",   " First name of Buyer #2, includes middle {*smart field*}"},
    {3064, "[buyer 2 last name]",    " Last name of Buyer #2 {*smart field*}"},
    {1072, "[property city]",        " City of property being sold {*smart field*}"},
    {2072, "[property county]",      " County of property being sold {*smart field*}"},
    {3072, "[property village]",     " Village/District of property being sold {*smart field*}"},
    {4072, "[prop municipal csz]",   " Municipal city, state zip of property being sold {*smart field*}"},
    {1076, "[sale price words]",     " Contract purchase/sales price in words {*smart field*}"},
    {1079, "[closing month]",        " Month of closing {*smart field*}"},
    {2079, "[closing day]",          " Day of closing, includes suffix {*smart field*}"},
    {3079, "[closing year]",         " Year of closing {*smart field*}"},
    {1089, "[mtg amount words]",     " Buyer's mortgage amount in words {*smart field*}"},
    {1187, "[county of execution]",  " County in which documents will be executed {*smart field*}"},
};

struct GroupRow {
    float from;
    std::string_view label;
};
constexpr GroupRow kGroups[] = {
    {kUserFieldSortKey, " USER-DEFINED"},
    {             6000, " ADJUSTMENTS"},
    {             5000, " PAYOFF/ESCROW"},
    {             4000, " PROPERTY/TRANSACTION"},
    {             3000, " BUYER"},
    {             2000, " SELLER/FIDUCIARY"},
    {             1000, " ATTORNEY"},
};

constexpr int kAddresses[] = {
      4,   // seller's attorney
     13,   // buyer's attorney
     23,   // seller 1
     29,   // seller 2
     34,   // seller's forwarding address
     38,   // administrator
     42,   // executor
     46,   // decedent
     50,   // conservator
     55,   // trustee
     60,   // buyer 1
     65,   // buyer 2
     70,   // property
     96,   // payoff 1 servicer
    114,   // payoff 2 servicer
    141,   // escrow attorney
    157,   // principal of the power
    162,   // attorney in fact
    166,   // attorney in fact 2
};
// clang-format on

const FieldRow* FindRow(int n) {
    static const auto rows = [] {
        std::array<const FieldRow*, kFields + 1> byNumber{};
        for (const FieldRow& row : kRows) byNumber[static_cast<std::size_t>(row.number)] = &row;
        return byNumber;
    }();
    return n >= 1 && n <= kFields ? rows[static_cast<std::size_t>(n)] : nullptr;
}

const DerivedField* FindDerived(int number) {
    for (const DerivedField& derived : kDerived)
        if (derived.number == number) return &derived;
    return nullptr;
}

bool HoldsName(const Job& job, int n) {
    const std::string& text = job.txtField(n).text;
    return !text.empty() && text != FieldMarker(n);
}

std::string CommissionDescription(const std::string& realtor) {
    return " Commission charged by " + realtor + " (e.g.  15000 or 6%), auto-fmt";
}

bool IsDefaultsList(std::string_view jobName) {
    constexpr std::string_view kName = "DEFAULTS";
    if (jobName.size() != kName.size()) return false;
    for (std::size_t i = 0; i < kName.size(); ++i)
        if ((jobName[i] & ~0x20) != kName[i]) return false;
    return true;
}

/// The description that the job's state puts in the place of the constant one; empty where it does not.
std::string DescriptionInJob(int n, const Job& job) {
    switch (n) {
        case 3:
            if (IsDefaultsList(job.name))
                return " Full name & juris# of seller's attorney, separated by forward-slash \"/\""
                       " (e.g.  Mary A. Smith/012345)";
            break;
        case 21:
            if (job.optConf(Entity)) return " Full name of seller entity (e.g.  ACME Properties LLC)";
            if (job.optConf(EstateTrust))
                return " Full name of fiduciary seller signing documents (e.g.  Mary R. Doe)";
            break;
        case 58: {
            // A holder that no document asks for rests at its marker, which is no sign of a decedent.
            const FieldHolder& decedent = job.txtField(45);
            if (HoldsName(job, 45) || (decedent.relevant && !decedent.text.empty()))
                return " Article number in decedent's Will under which trustee is appointed (e.g.  'IV' or "
                       "'4')";
            break;
        }
        case 86:
        case 88:
            if (HoldsName(job, n - 1)) return CommissionDescription(job.txtField(n - 1).text);
            break;
        default:
            break;
    }
    return {};
}

}  // namespace

std::string_view FieldMarker(int n) {
    const FieldRow* row = FindRow(n);
    return row ? row->marker : std::string_view{};
}

float FieldSortKey(int n) {
    const FieldRow* row = FindRow(n);
    return row ? row->sortKey : 0;
}

std::string FieldDescription(int n, const Job& job) {
    if (n == 0) return " user-defined field";
    if (const FieldRow* row = FindRow(n)) {
        std::string inJob = DescriptionInJob(n, job);
        if (!inJob.empty()) return inJob;
        return std::string(" ").append(row->description);
    }
    const DerivedField* derived = FindDerived(n);
    return derived ? std::string(derived->description) : std::string();
}

int FieldOfMarker(std::string_view marker) {
    static const auto numbers = [] {
        std::unordered_map<std::string_view, int> byMarker;
        for (const FieldRow& row : kRows)
            if (row.marker != "[]") byMarker.emplace(row.marker, row.number);
        return byMarker;
    }();
    const auto found = numbers.find(marker);
    return found == numbers.end() ? 0 : found->second;
}

std::span<const DerivedField> DerivedFields() {
    return kDerived;
}

std::string_view DerivedMarker(int number) {
    const DerivedField* derived = FindDerived(number);
    return derived ? derived->marker : std::string_view{};
}

std::string_view FieldGroup(float sortKey) {
    for (const GroupRow& group : kGroups)
        if (sortKey >= group.from) return group.label;
    return {};
}

std::span<const int> AddressFields() {
    return kAddresses;
}

}  // namespace quillmark
